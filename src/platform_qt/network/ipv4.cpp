#include "platform_qt/network/ipv4.h"

#include <arpa/inet.h>

#include <array>

namespace verlume::qt {
namespace {

bool IsIn(in_addr_t address, std::uint32_t network, int prefixLength) {
  const int rest = 32 - prefixLength;
  return ntohl(address) >> rest == network >> rest;
}

}  // namespace

std::optional<in_addr_t> ParseIpv4(std::string_view text) {
  in_addr address{};
  if (text.size() >= INET_ADDRSTRLEN) return std::nullopt;
  if (::inet_pton(AF_INET, std::string(text).c_str(), &address) != 1) return std::nullopt;
  return address.s_addr;
}

std::string Ipv4Text(in_addr_t address) {
  std::array<char, INET_ADDRSTRLEN> text{};
  ::inet_ntop(AF_INET, &address, text.data(), text.size());
  return text.data();
}

bool IsOfOwnNetwork(in_addr_t address) {
  return IsIn(address, 0x0A000000, 8) || IsIn(address, 0xAC100000, 12) ||
         IsIn(address, 0xC0A80000, 16) || IsIn(address, 0xA9FE0000, 16);
}

bool IsOfOneMachine(in_addr_t address) {
  return !IsIn(address, 0x00000000, 8) && !IsIn(address, 0x7F000000, 8) &&
         !IsIn(address, 0xE0000000, 3);
}

sockaddr_in SocketAddress(in_addr_t address, std::uint16_t port) {
  sockaddr_in result{};
  result.sin_family = AF_INET;
  result.sin_port = htons(port);
  result.sin_addr.s_addr = address;
  return result;
}

}  // namespace verlume::qt
