#include "platform_qt/os/machine_addresses_posix.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <linux/if_addr.h>
#include <net/if.h>

#include <array>
#include <memory>
#include <optional>
#include <sstream>

#include "platform_qt/os/machine_addresses.h"
#include "platform_qt/os/small_file_posix.h"
#include "stream/utf8_text.h"

namespace verlume::qt {
namespace {

constexpr std::size_t kDigitsOfIpv6 = 32;

std::string HexOf(const in6_addr& address) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string digits;
  for (const unsigned char byte : address.s6_addr) {
    digits += kDigits[byte >> 4];
    digits += kDigits[byte & 15];
  }
  return digits;
}

std::u16string AddressText(int family, const void* address) {
  std::array<char, INET6_ADDRSTRLEN> text{};
  ::inet_ntop(family, address, text.data(), text.size());
  return stream::DecodeUtf8(text.data());
}

std::optional<NetworkAddress> AddressOf(const ifaddrs& entry, const Ipv6Marks& marks) {
  if (!entry.ifa_addr || !(entry.ifa_flags & IFF_UP)) return std::nullopt;
  const std::u16string name = stream::DecodeUtf8(entry.ifa_name);
  if (entry.ifa_addr->sa_family == AF_INET) {
    const auto* address = reinterpret_cast<const sockaddr_in*>(entry.ifa_addr);
    return NetworkAddress{AddressText(AF_INET, &address->sin_addr), name, false};
  }
  if (entry.ifa_addr->sa_family != AF_INET6) return std::nullopt;
  const auto* address = reinterpret_cast<const sockaddr_in6*>(entry.ifa_addr);
  const std::string digits = HexOf(address->sin6_addr);
  if (marks.unusable.contains(digits)) return std::nullopt;
  return NetworkAddress{AddressText(AF_INET6, &address->sin6_addr), name,
                        marks.temporary.contains(digits)};
}

}  // namespace

// A line: address, number of the interface, length of the prefix, scope, flags, name; the numbers
// are hexadecimal.
Ipv6Marks ReadIpv6Marks(std::string_view text) {
  Ipv6Marks marks;
  std::istringstream lines{std::string(text)};
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string address;
    unsigned interface = 0;
    unsigned prefix = 0;
    unsigned scope = 0;
    unsigned flags = 0;
    words >> address >> std::hex >> interface >> prefix >> scope >> flags;
    if (words.fail() || address.size() != kDigitsOfIpv6) continue;
    if (flags & IFA_F_TEMPORARY) marks.temporary.insert(address);
    if (flags & (IFA_F_TENTATIVE | IFA_F_DADFAILED)) marks.unusable.insert(address);
  }
  return marks;
}

// Qt's own list does not tell which addresses are temporary: it calls those so that expire.
std::vector<NetworkAddress> MachineAddresses() {
  const Ipv6Marks marks = ReadIpv6Marks(ReadSmallFile("/proc/thread-self/net/if_inet6"));
  ifaddrs* first = nullptr;
  if (::getifaddrs(&first) != 0) return {};
  const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> list(first, &::freeifaddrs);
  std::vector<NetworkAddress> addresses;
  for (const ifaddrs* entry = first; entry; entry = entry->ifa_next) {
    if (auto address = AddressOf(*entry, marks)) addresses.push_back(std::move(*address));
  }
  return addresses;
}

}  // namespace verlume::qt
