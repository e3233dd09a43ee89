// Reads what Linux says of IPv6 addresses.
#pragma once

#include <set>
#include <string>
#include <string_view>

namespace verlume::qt {

// What /proc/net/if_inet6 says, each address as 32 hexadecimal digits.
struct Ipv6Marks {
  std::set<std::string> temporary;
  std::set<std::string> unusable;
};
// Lines that make no sense are left out.
Ipv6Marks ReadIpv6Marks(std::string_view text);

}  // namespace verlume::qt
