// The routers through which this machine reaches the world by IPv4; each system has a file of its
// own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform_qt/os/ipv4.h"

namespace verlume::qt {

inline constexpr std::size_t kMostGateways = 4;

// The gateways of the default routes, the preferred one first, each once; kMostGateways at most.
std::vector<Ipv4> DefaultGateways();

struct DefaultRoute {
  std::uint32_t metric = 0;  // the lowest is preferred
  Ipv4 gateway = kNoIpv4;
};
// The same of all default routes, in any order.
std::vector<Ipv4> PreferredGateways(std::vector<DefaultRoute> routes);

}  // namespace verlume::qt
