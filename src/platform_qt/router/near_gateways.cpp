#include "platform_qt/router/near_gateways.h"

#include <optional>

#include "platform_qt/os/default_gateways.h"
#include "platform_qt/os/open_socket.h"

namespace verlume::qt {
namespace {

// The system chooses it when a datagram is to be sent; none is.
std::optional<Ipv4> LocalAddressTowards(Ipv4 gateway) {
  constexpr std::uint16_t kAnyPort = 9;
  const OpenSocket socket = OpenSocket::Datagrams();
  if (!socket.IsOpen() || socket.Connect({gateway, kAnyPort}) != SocketStep::Done) {
    return std::nullopt;
  }
  const std::optional<Ipv4Place> local = socket.LocalPlace();
  if (!local) return std::nullopt;
  return local->address;
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
  for (const Ipv4 address : DefaultGateways()) {
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
