#include "platform_qt/os/default_gateways.h"

#include <utility>

#include "platform_qt/os/adapters_windows.h"

namespace verlume::qt {

std::vector<Ipv4> DefaultGateways() {
  const Adapters adapters;
  std::vector<DefaultRoute> routes;
  for (const auto* adapter = adapters.First(); adapter; adapter = adapter->Next) {
    if (adapter->OperStatus != IfOperStatusUp) continue;
    for (const auto* each = adapter->FirstGatewayAddress; each; each = each->Next) {
      const sockaddr& place = *each->Address.lpSockaddr;
      if (place.sa_family != AF_INET) continue;
      const Ipv4 gateway = reinterpret_cast<const sockaddr_in&>(place).sin_addr.s_addr;
      if (gateway != kNoIpv4) routes.push_back({adapter->Ipv4Metric, gateway});
    }
  }
  return PreferredGateways(std::move(routes));
}

}  // namespace verlume::qt
