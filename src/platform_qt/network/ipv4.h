// IPv4 addresses, in the byte order of the network.
#pragma once

#include <netinet/in.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace verlume::qt {

// "192.0.2.7" and nothing else: four decimal numbers.
std::optional<in_addr_t> ParseIpv4(std::string_view text);
std::string Ipv4Text(in_addr_t address);

// An address of somebody's own network: 10/8, 172.16/12, 192.168/16 or 169.254/16.
bool IsOfOwnNetwork(in_addr_t address);
// Some machine can have it: it is not 0/8, not loopback, not for groups, not reserved.
bool IsOfOneMachine(in_addr_t address);

sockaddr_in SocketAddress(in_addr_t address, std::uint16_t port);

}  // namespace verlume::qt
