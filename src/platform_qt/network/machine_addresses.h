// The addresses of this machine's interfaces.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/network.h"

namespace verlume::qt {

// Of the interfaces that are up, in the system's order. Addresses that cannot be used (yet) are
// left out: those that the system still tests, and those that another machine has.
std::vector<NetworkAddress> MachineAddresses();

// What /proc/net/if_inet6 says of IPv6 addresses, each as 32 hexadecimal digits.
struct Ipv6Marks {
  std::set<std::string> temporary;
  std::set<std::string> unusable;
};
// Lines that make no sense are left out.
Ipv6Marks ReadIpv6Marks(std::string_view text);

}  // namespace verlume::qt
