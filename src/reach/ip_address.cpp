#include "reach/ip_address.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace verlume {
namespace {

constexpr std::size_t kLongestText = 45;  // of IPv6 that ends in IPv4

using Groups = std::vector<std::uint16_t>;  // of IPv6, 16 bits each

// The text cut at each separator; "" is one empty part.
std::vector<std::u16string_view> PartsOf(std::u16string_view text, char16_t separator) {
  std::vector<std::u16string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == text.npos) return parts;
    text.remove_prefix(end + 1);
  }
}

// -1 for anything but a digit.
int DigitValue(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'a' && c <= u'f') return c - u'a' + 10;
  if (c >= u'A' && c <= u'F') return c - u'A' + 10;
  return -1;
}

std::optional<unsigned> NumberIn(std::u16string_view digits, unsigned base,
                                 std::size_t mostDigits) {
  if (digits.empty() || digits.size() > mostDigits) return std::nullopt;
  unsigned number = 0;
  for (const char16_t c : digits) {
    const int value = DigitValue(c);
    if (value < 0 || static_cast<unsigned>(value) >= base) return std::nullopt;
    number = number * base + static_cast<unsigned>(value);
  }
  return number;
}

// Four bytes. Some systems read a part that begins with 0 as octal: such a text names two
// addresses.
std::optional<std::vector<std::uint8_t>> IPv4In(std::u16string_view text) {
  const auto parts = PartsOf(text, u'.');
  if (parts.size() != 4) return std::nullopt;
  std::vector<std::uint8_t> bytes;
  for (const std::u16string_view part : parts) {
    const auto number = NumberIn(part, 10, 3);
    const bool hasUselessZero = part.size() > 1 && part.front() == u'0';
    if (!number || *number > 255 || hasUselessZero) return std::nullopt;
    bytes.push_back(static_cast<std::uint8_t>(*number));
  }
  return bytes;
}

// The groups of a text without "::". The last one may be an IPv4 address, which counts as two.
std::optional<Groups> GroupsIn(std::u16string_view text) {
  Groups groups;
  if (text.empty()) return groups;
  const auto parts = PartsOf(text, u':');
  for (const std::u16string_view& part : parts) {
    if (&part == &parts.back() && part.find(u'.') != part.npos) {
      const auto v4 = IPv4In(part);
      if (!v4) return std::nullopt;
      groups.push_back(static_cast<std::uint16_t>((*v4)[0] << 8 | (*v4)[1]));
      groups.push_back(static_cast<std::uint16_t>((*v4)[2] << 8 | (*v4)[3]));
      return groups;
    }
    const auto group = NumberIn(part, 16, 4);
    if (!group) return std::nullopt;
    groups.push_back(static_cast<std::uint16_t>(*group));
  }
  return groups;
}

std::optional<Groups> IPv6In(std::u16string_view text) {
  constexpr std::size_t kGroups = 8;
  const std::size_t gap = text.find(u"::");
  if (gap == text.npos) {
    const auto all = GroupsIn(text);
    return all && all->size() == kGroups ? all : std::nullopt;
  }
  const std::u16string_view before = text.substr(0, gap);
  const auto first = GroupsIn(before);
  const auto last = GroupsIn(text.substr(gap + 2));
  // The gap stands for one group at least; an IPv4 address stands at the end only.
  if (!first || !last || before.find(u'.') != before.npos) return std::nullopt;
  if (first->size() + last->size() >= kGroups) return std::nullopt;
  Groups all = *first;
  all.resize(kGroups - last->size());
  all.insert(all.end(), last->begin(), last->end());
  return all;
}

}  // namespace

bool IsIPv4(const IpAddress& address) {
  constexpr std::array<std::uint8_t, 12> kMapped = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF};
  return std::equal(kMapped.begin(), kMapped.end(), address.bytes.begin());
}

std::optional<IpAddress> IpAddressIn(std::u16string_view text) {
  if (text.size() > kLongestText) return std::nullopt;
  IpAddress address;
  if (const auto v4 = IPv4In(text)) {
    address.bytes[10] = address.bytes[11] = 0xFF;
    std::ranges::copy(*v4, address.bytes.begin() + 12);
    return address;
  }
  const auto groups = IPv6In(text);
  if (!groups) return std::nullopt;
  for (std::size_t i = 0; i < groups->size(); ++i) {
    address.bytes[2 * i] = static_cast<std::uint8_t>((*groups)[i] >> 8);
    address.bytes[2 * i + 1] = static_cast<std::uint8_t>((*groups)[i] & 0xFF);
  }
  return address;
}

}  // namespace verlume
