#include "reach/address_scope.h"

#include <algorithm>
#include <cstddef>

namespace verlume {
namespace {

struct Block {
  std::u16string_view first;
  int prefix;  // in bits
  AddressScope scope;
};

// A block stands before the greater one that it is a part of.
constexpr Block kIPv4Blocks[] = {
    {u"0.0.0.0", 8, AddressScope::Nobody},
    {u"10.0.0.0", 8, AddressScope::ThisNetwork},
    {u"100.64.0.0", 10, AddressScope::Provider},
    {u"127.0.0.0", 8, AddressScope::ThisComputer},
    {u"169.254.0.0", 16, AddressScope::ThisLink},
    {u"172.16.0.0", 12, AddressScope::ThisNetwork},
    {u"192.0.0.0", 29, AddressScope::Provider},  // a provider that carries IPv4 over IPv6 (DS-Lite)
    {u"192.0.0.0", 24, AddressScope::Nobody},    // for protocols
    {u"192.0.2.0", 24, AddressScope::Nobody},    // for examples
    {u"192.88.99.0", 24, AddressScope::Nobody},  // once the relays of 6to4
    {u"192.168.0.0", 16, AddressScope::ThisNetwork},
    {u"198.18.0.0", 15, AddressScope::Nobody},    // for benchmarks
    {u"198.51.100.0", 24, AddressScope::Nobody},  // for examples
    {u"203.0.113.0", 24, AddressScope::Nobody},   // for examples
    {u"224.0.0.0", 4, AddressScope::Nobody},      // multicast
    {u"240.0.0.0", 4, AddressScope::Nobody},      // reserved, broadcast
};

// What is in none of these is not in use: only 2000::/3 is given out.
constexpr Block kIPv6Blocks[] = {
    {u"::1", 128, AddressScope::ThisComputer},
    {u"2001::", 32, AddressScope::Tunnel},      // Teredo
    {u"2001:2::", 48, AddressScope::Nobody},    // for benchmarks
    {u"2001:db8::", 32, AddressScope::Nobody},  // for examples
    {u"2001::", 23, AddressScope::Nobody},      // for protocols
    {u"2002::", 16, AddressScope::Tunnel},      // 6to4
    {u"3fff::", 20, AddressScope::Nobody},      // for examples
    {u"2000::", 3, AddressScope::Anyone},
    {u"fc00::", 7, AddressScope::ThisNetwork},
    {u"fe80::", 10, AddressScope::ThisLink},
    {u"fec0::", 10, AddressScope::ThisNetwork},  // site-local, given up
};

constexpr int kMappedPrefix = 96;  // the bits before an IPv4 address

bool AgreeIn(const IpAddress& one, const IpAddress& other, int bits) {
  const auto whole = static_cast<std::ptrdiff_t>(bits / 8);
  if (!std::equal(one.bytes.begin(), one.bytes.begin() + whole, other.bytes.begin())) return false;
  if (bits % 8 == 0) return true;
  const auto at = static_cast<std::size_t>(whole);
  return (one.bytes[at] ^ other.bytes[at]) >> (8 - bits % 8) == 0;
}

template <std::size_t kCount>
AddressScope ScopeIn(const Block (&blocks)[kCount], const IpAddress& address, int prefixBefore,
                     AddressScope otherwise) {
  for (const Block& block : blocks) {
    if (AgreeIn(address, *IpAddressIn(block.first), prefixBefore + block.prefix)) {
      return block.scope;
    }
  }
  return otherwise;
}

}  // namespace

AddressScope ScopeOf(const IpAddress& address) {
  return IsIPv4(address) ? ScopeIn(kIPv4Blocks, address, kMappedPrefix, AddressScope::Anyone)
                         : ScopeIn(kIPv6Blocks, address, 0, AddressScope::Nobody);
}

AddressScope ScopeOf(std::u16string_view text) {
  const auto address = IpAddressIn(text);
  return address ? ScopeOf(*address) : AddressScope::NoAddress;
}

}  // namespace verlume
