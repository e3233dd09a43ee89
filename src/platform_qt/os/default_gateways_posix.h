// Reads the system's list of routes.
#pragma once

#include <string_view>
#include <vector>

#include "platform_qt/os/default_gateways.h"

namespace verlume::qt {

// What DefaultGateways are by the text of /proc/net/route. Lines that make no sense are left out.
std::vector<Ipv4> DefaultGatewaysIn(std::string_view routes);

}  // namespace verlume::qt
