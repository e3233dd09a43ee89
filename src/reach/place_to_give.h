// The address and port that a user gives to whoever is to call.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/network.h"
#include "reach/router_verdict.h"

namespace verlume {

// From the best, of what is known while a call is waited for at `port`: an IPv6 address that anyone
// can reach, such an IPv4 address, what the router passes on, `ownAddress`, which the panel shows.
// A temporary address is given only if there is no other.
PlaceToCall PlaceToGive(const std::vector<NetworkAddress>& addresses, const RouterVerdict& router,
                        std::u16string_view ownAddress, std::int32_t port);

}  // namespace verlume
