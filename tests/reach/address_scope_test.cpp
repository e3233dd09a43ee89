#include "reach/address_scope.h"

#include <gtest/gtest.h>

#include <string>

namespace verlume {
namespace {

using enum AddressScope;

struct Sample {
  const char16_t* text;
  AddressScope scope;
};

// The first and the last address of each block, and their neighbours.
constexpr Sample kSamples[] = {
    {u"0.0.0.0", Nobody},
    {u"0.255.255.255", Nobody},
    {u"1.0.0.0", Anyone},
    {u"9.255.255.255", Anyone},
    {u"10.0.0.0", ThisNetwork},
    {u"10.255.255.255", ThisNetwork},
    {u"11.0.0.0", Anyone},
    {u"100.63.255.255", Anyone},
    {u"100.64.0.0", Provider},
    {u"100.127.255.255", Provider},
    {u"100.128.0.0", Anyone},
    {u"127.0.0.1", ThisComputer},
    {u"127.255.255.255", ThisComputer},
    {u"128.0.0.0", Anyone},
    {u"169.253.255.255", Anyone},
    {u"169.254.0.1", ThisLink},
    {u"169.254.255.255", ThisLink},
    {u"172.15.255.255", Anyone},
    {u"172.16.0.0", ThisNetwork},
    {u"172.31.255.255", ThisNetwork},
    {u"172.32.0.0", Anyone},
    {u"191.255.255.255", Anyone},
    {u"192.0.0.2", Provider},
    {u"192.0.0.8", Nobody},
    {u"192.0.1.0", Anyone},
    {u"192.0.2.7", Nobody},
    {u"192.0.3.0", Anyone},
    {u"192.88.99.1", Nobody},
    {u"192.167.255.255", Anyone},
    {u"192.168.0.0", ThisNetwork},
    {u"192.168.255.255", ThisNetwork},
    {u"192.169.0.0", Anyone},
    {u"198.17.255.255", Anyone},
    {u"198.18.0.0", Nobody},
    {u"198.19.255.255", Nobody},
    {u"198.20.0.0", Anyone},
    {u"198.51.100.1", Nobody},
    {u"203.0.113.255", Nobody},
    {u"203.0.114.0", Anyone},
    {u"223.255.255.255", Anyone},
    {u"224.0.0.1", Nobody},
    {u"239.255.255.255", Nobody},
    {u"240.0.0.0", Nobody},
    {u"255.255.255.255", Nobody},
    {u"::", Nobody},
    {u"::1", ThisComputer},
    {u"::2", Nobody},
    {u"::ffff:10.0.0.1", ThisNetwork},
    {u"::ffff:127.0.0.1", ThisComputer},
    {u"::ffff:8.8.4.4", Anyone},
    {u"::8.8.4.4", Nobody},
    {u"64:ff9b::8.8.4.4", Nobody},
    {u"64:ff9b:1::1", Nobody},
    {u"100::1", Nobody},
    {u"1fff:ffff::1", Nobody},
    {u"2000::1", Anyone},
    {u"2001::1", Tunnel},
    {u"2001:0:ffff::1", Tunnel},
    {u"2001:1::1", Nobody},
    {u"2001:2::1", Nobody},
    {u"2001:20::1", Nobody},
    {u"2001:1ff:ffff::1", Nobody},
    {u"2001:200::1", Anyone},
    {u"2001:db7:ffff::1", Anyone},
    {u"2001:db8::1", Nobody},
    {u"2001:db8:ffff::1", Nobody},
    {u"2001:db9::1", Anyone},
    {u"2002:a00:1::1", Tunnel},
    {u"2003::1", Anyone},
    {u"2a02:587::1", Anyone},
    {u"3ffe::1", Anyone},
    {u"3fff:fff::1", Nobody},
    {u"3fff:1000::1", Anyone},
    {u"4000::1", Nobody},
    {u"fbff::1", Nobody},
    {u"fc00::1", ThisNetwork},
    {u"fd12:3456::1", ThisNetwork},
    {u"fe00::1", Nobody},
    {u"fe80::1", ThisLink},
    {u"febf::1", ThisLink},
    {u"fec0::1", ThisNetwork},
    {u"ff02::1", Nobody},
    {u"", NoAddress},
    {u"router.example", NoAddress},
    {u"fe80::1%eth0", NoAddress},
    {u"999.1.1.1", NoAddress},
};

TEST(AddressScopeTest, EveryBlockHasItsScope) {
  for (const auto& [text, scope] : kSamples) {
    EXPECT_EQ(ScopeOf(std::u16string_view(text)), scope)
        << testing::PrintToString(std::u16string(text));
  }
}

}  // namespace
}  // namespace verlume
