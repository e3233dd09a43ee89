#include "platform_qt/router/near_gateways.h"

#include <sys/socket.h>

#include <optional>

#include "platform_qt/network/default_gateways.h"
#include "platform_qt/network/descriptor.h"
#include "platform_qt/network/ipv4.h"

namespace verlume::qt {
namespace {

// The system chooses it when a datagram is to be sent; none is.
std::optional<in_addr_t> LocalAddressTowards(in_addr_t gateway) {
  const Descriptor socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  constexpr std::uint16_t kAnyPort = 9;
  const sockaddr_in to = SocketAddress(gateway, kAnyPort);
  sockaddr_in local{};
  socklen_t length = sizeof local;
  if (::connect(socket.Number(), reinterpret_cast<const sockaddr*>(&to), sizeof to) != 0 ||
      ::getsockname(socket.Number(), reinterpret_cast<sockaddr*>(&local), &length) != 0) {
    return std::nullopt;
  }
  return local.sin_addr.s_addr;
}

int Rank(RouterState state) {
  switch (state) {
    case RouterState::Asking:
    case RouterState::Silent:
      return 0;
    case RouterState::Nonsense:
      return 1;
    case RouterState::Refused:
      return 2;
    case RouterState::NotAsked:  // for a port, but it has told its address
    case RouterState::Mapped:
      break;
  }
  return 3;
}

}  // namespace

std::vector<Gateway> NearGateways() {
  std::vector<Gateway> gateways;
  for (const in_addr_t address : DefaultGateways()) {
    if (!IsOfOwnNetwork(address)) continue;
    const auto local = LocalAddressTowards(address);
    if (local && *local != address) gateways.push_back({address, *local});
  }
  return gateways;
}

RouterReport Better(const RouterReport& a, const RouterReport& b) {
  return Rank(b.state) > Rank(a.state) ? b : a;
}

}  // namespace verlume::qt
