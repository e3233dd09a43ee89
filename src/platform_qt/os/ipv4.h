// IPv4 addresses, as sockets take them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace verlume::qt {

// In the byte order of the network.
using Ipv4 = std::uint32_t;

inline constexpr Ipv4 kNoIpv4 = 0;  // "0.0.0.0"

// Where a program can be reached.
struct Ipv4Place {
  Ipv4 address = kNoIpv4;
  std::uint16_t port = 0;

  bool operator==(const Ipv4Place&) const = default;
};

// "192.0.2.7" and nothing else: four decimal numbers.
std::optional<Ipv4> ParseIpv4(std::string_view text);
std::string Ipv4Text(Ipv4 address);

// An address of somebody's own network: 10/8, 172.16/12, 192.168/16 or 169.254/16.
bool IsOfOwnNetwork(Ipv4 address);
// Some machine can have it: it is not 0/8, not loopback, not for groups, not reserved.
bool IsOfOneMachine(Ipv4 address);

}  // namespace verlume::qt
