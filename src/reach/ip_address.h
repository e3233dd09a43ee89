// IP addresses out of text that may come from anywhere.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace verlume {

struct IpAddress {
  // In network order. An IPv4 address is kept as IPv4-mapped IPv6 (::ffff:0:0/96), and so is one
  // that was written like that.
  std::array<std::uint8_t, 16> bytes{};

  bool operator==(const IpAddress&) const = default;
};

bool IsIPv4(const IpAddress& address);

// "192.0.2.7", or IPv6 in any of its forms ("2001:db8::1", "::ffff:192.0.2.7"). None if the text is
// anything else: brackets, a zone, a port, blanks, or a part of IPv4 that begins with a useless 0.
std::optional<IpAddress> IpAddressIn(std::u16string_view text);

}  // namespace verlume
