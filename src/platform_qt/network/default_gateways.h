// The routers through which this machine reaches the world by IPv4.
#pragma once

#include <netinet/in.h>

#include <string>
#include <string_view>
#include <vector>

namespace verlume::qt {

constexpr std::size_t kMostGateways = 4;

// The gateways of the default routes, the preferred one first, each once; kMostGateways at most.
std::vector<in_addr_t> DefaultGateways();

// The same from the text of /proc/net/route. Lines that make no sense are left out.
std::vector<in_addr_t> DefaultGatewaysIn(std::string_view routes);

}  // namespace verlume::qt
