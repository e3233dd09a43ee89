#include "platform_qt/os/ipv4.h"

#include <array>
#include <bit>
#include <charconv>

namespace verlume::qt {
namespace {

using Bytes = std::array<std::uint8_t, 4>;

bool IsIn(Ipv4 address, std::uint32_t network, int prefixLength) {
  std::uint32_t number = 0;
  for (const std::uint8_t byte : std::bit_cast<Bytes>(address)) number = number << 8 | byte;
  const int rest = 32 - prefixLength;
  return number >> rest == network >> rest;
}

// Takes a number from the start of the text: no sign, no zero before others.
bool TakeNumber(std::string_view& text, std::uint8_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return false;
  const auto length = static_cast<std::size_t>(end - text.data());
  if (length > 1 && text.front() == '0') return false;
  text.remove_prefix(length);
  return true;
}

}  // namespace

std::optional<Ipv4> ParseIpv4(std::string_view text) {
  Bytes bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i > 0) {
      if (!text.starts_with('.')) return std::nullopt;
      text.remove_prefix(1);
    }
    if (!TakeNumber(text, bytes[i])) return std::nullopt;
  }
  if (!text.empty()) return std::nullopt;
  return std::bit_cast<Ipv4>(bytes);
}

std::string Ipv4Text(Ipv4 address) {
  std::string text;
  for (const std::uint8_t byte : std::bit_cast<Bytes>(address)) {
    if (!text.empty()) text += '.';
    text += std::to_string(byte);
  }
  return text;
}

bool IsOfOwnNetwork(Ipv4 address) {
  return IsIn(address, 0x0A000000, 8) || IsIn(address, 0xAC100000, 12) ||
         IsIn(address, 0xC0A80000, 16) || IsIn(address, 0xA9FE0000, 16);
}

bool IsOfOneMachine(Ipv4 address) {
  return !IsIn(address, 0x00000000, 8) && !IsIn(address, 0x7F000000, 8) &&
         !IsIn(address, 0xE0000000, 3);
}

}  // namespace verlume::qt
