#include "reach/ip_address.h"

#include <gtest/gtest.h>

#include <string>

namespace verlume {
namespace {

TEST(IpAddressTest, ReadsIPv4) {
  const auto address = IpAddressIn(u"192.0.2.7");
  ASSERT_TRUE(address);
  EXPECT_TRUE(IsIPv4(*address));
  EXPECT_EQ(address->bytes[12], 192);
  EXPECT_EQ(address->bytes[15], 7);
}

TEST(IpAddressTest, ReadsEveryFormOfIPv6) {
  const auto address = IpAddressIn(u"2001:db8:0:0:0:0:c000:207");
  ASSERT_TRUE(address);
  EXPECT_FALSE(IsIPv4(*address));
  for (const char16_t* text : {u"2001:db8::c000:207", u"2001:DB8::C000:0207",
                               u"2001:db8::192.0.2.7", u"2001:db8:0::0:c000:207"}) {
    EXPECT_EQ(IpAddressIn(text), address);
  }
  EXPECT_EQ(IpAddressIn(u"::"), IpAddress{});
  EXPECT_EQ(IpAddressIn(u"1::")->bytes[1], 1);
  EXPECT_EQ(IpAddressIn(u"::1")->bytes[15], 1);
}

TEST(IpAddressTest, AMappedAddressIsIPv4) {
  EXPECT_EQ(IpAddressIn(u"::ffff:192.0.2.7"), IpAddressIn(u"192.0.2.7"));
  EXPECT_EQ(IpAddressIn(u"::FFFF:c000:207"), IpAddressIn(u"192.0.2.7"));
}

TEST(IpAddressTest, AnythingElseIsNone) {
  for (const char16_t* text : {u"",
                               u".",
                               u":",
                               u":::",
                               u"1.2.3",
                               u"1.2.3.4.5",
                               u"1.2.3.256",
                               u"1.2.3.04",
                               u"1.2.3.-4",
                               u"1.2.3.4 ",
                               u" 1.2.3.4",
                               u"1.2.3.4:80",
                               u"+1.2.3.4",
                               u"0x1.2.3.4",
                               u"1.2.3.4000",
                               u"[::1]",
                               u"fe80::1%eth0",
                               u"1:2:3:4:5:6:7",
                               u"1:2:3:4:5:6:7:8:9",
                               u"1:2:3:4:5:6:7:8::",
                               u"::1::",
                               u"1::2::3",
                               u"12345::",
                               u"g::",
                               u":1:2:3:4:5:6:7:8",
                               u"1:",
                               u"1.2.3.4::",
                               u"::1.2.3.4:5",
                               u"::1.2.3",
                               u"router",
                               u"١.٢.٣.٤",
                               u"1.2.3.4\u202e",
                               u"<b>1.2.3.4</b>"}) {
    EXPECT_EQ(IpAddressIn(text), std::nullopt) << testing::PrintToString(std::u16string(text));
  }
  EXPECT_EQ(IpAddressIn(std::u16string(1'000'000, u':')), std::nullopt);
  EXPECT_EQ(IpAddressIn(std::u16string(u"1.2.3.4").append(1, u'\0')), std::nullopt);
}

}  // namespace
}  // namespace verlume
