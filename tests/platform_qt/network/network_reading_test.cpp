// What the system's own lists say of routes and addresses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform_qt/os/default_gateways_posix.h"
#include "platform_qt/os/ipv4.h"
#include "platform_qt/os/machine_addresses_posix.h"

namespace verlume::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kRouteTitles[] =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";

std::vector<std::string> GatewaysIn(const std::string& lines) {
  std::vector<std::string> texts;
  for (const Ipv4 gateway : DefaultGatewaysIn(kRouteTitles + lines)) {
    texts.push_back(Ipv4Text(gateway));
  }
  return texts;
}

TEST(DefaultGateways, AreThoseOfDefaultRoutes) {
  EXPECT_THAT(GatewaysIn("eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"
                         "eth0\t0001A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n"),
              ElementsAre("192.168.1.1"));
}

TEST(DefaultGateways, ComeInTheOrderOfPreferenceAndOnce) {
  EXPECT_THAT(GatewaysIn("wlan0\t00000000\tFE02A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
                         "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"
                         "eth1\t00000000\t0101A8C0\t0003\t0\t0\t700\t00000000\t0\t0\t0\n"),
              ElementsAre("192.168.1.1", "192.168.2.254"));
}

TEST(DefaultGateways, ARouteWithoutGatewayOrThatIsDownHasNone) {
  EXPECT_THAT(GatewaysIn("tun0\t00000000\t00000000\t0001\t0\t0\t50\t00000000\t0\t0\t0\n"
                         "eth0\t00000000\t0101A8C0\t0002\t0\t0\t100\t00000000\t0\t0\t0\n"
                         "tun0\t00000000\t0101A8C0\t0003\t0\t0\t0\t00000080\t0\t0\t0\n"),
              IsEmpty());
}

TEST(DefaultGateways, NonsenseIsLeftOut) {
  EXPECT_THAT(GatewaysIn("eth0\t00000000\n\n\t\t\t\nzz zz zz zz zz zz zz zz\n\xFF\xFE\n"
                         "eth0\t00000000\t0101A8C0FFFFFFFF\t0003\t0\t0\t1\t00000000\n"),
              IsEmpty());
  std::string many;
  for (int i = 0; i < 1000; ++i) {
    many += "eth0 00000000 0101" + std::to_string(1000 + i) + " 0003 0 0 1 00000000\n";
  }
  EXPECT_EQ(GatewaysIn(many).size(), kMostGateways);
}

TEST(Ipv6Marks, TellTemporaryAddressesAndThoseThatCannotBeUsedYet) {
  const Ipv6Marks marks = ReadIpv6Marks(
      "20010db8000000000000000000000001 02 40 00 00     eth0\n"
      "20010db8000000000000000000000002 02 40 00 01     eth0\n"
      "20010db8000000000000000000000003 02 40 00 40     eth0\n"
      "20010db8000000000000000000000004 02 40 00 c8     eth0\n");
  EXPECT_THAT(marks.temporary, ElementsAre("20010db8000000000000000000000002"));
  EXPECT_THAT(marks.unusable,
              ElementsAre("20010db8000000000000000000000003", "20010db8000000000000000000000004"));
}

TEST(Ipv6Marks, NonsenseIsLeftOut) {
  const Ipv6Marks marks = ReadIpv6Marks("\n1 2 3\n2001 02 40 00 01 eth0\nxyz\n\xFF\xFF 1 1 1 1\n");
  EXPECT_THAT(marks.temporary, IsEmpty());
  EXPECT_THAT(marks.unusable, IsEmpty());
}

TEST(Ipv4, OwnNetworksAreToldFromTheWorld) {
  for (const char* own :
       {"10.0.0.1", "172.16.0.1", "172.31.255.254", "192.168.0.1", "169.254.9.9"}) {
    EXPECT_TRUE(IsOfOwnNetwork(*ParseIpv4(own))) << own;
  }
  for (const char* other : {"9.255.255.255", "11.0.0.0", "172.15.0.1", "172.32.0.1", "192.167.0.1",
                            "100.64.0.1", "127.0.0.1", "203.0.113.7", "0.0.0.0"}) {
    EXPECT_FALSE(IsOfOwnNetwork(*ParseIpv4(other))) << other;
  }
}

TEST(Ipv4, OnlyFourDecimalNumbersAreAnAddress) {
  for (const char* nonsense : {"", "1.2.3", "1.2.3.4.5", "1.2.3.256", "0x7f.0.0.1", "127.1",
                               "2130706433", " 1.2.3.4", "1.2.3.4 ", "::1", "router"}) {
    EXPECT_EQ(ParseIpv4(nonsense), std::nullopt) << nonsense;
  }
}

}  // namespace
}  // namespace verlume::qt
