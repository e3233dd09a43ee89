// The names and addresses that can be called.
#include <gtest/gtest.h>

#include "network/two_machines.h"

namespace verlume::network {
namespace {

using namespace std::chrono_literals;

class AddressTest : public testing::Test {
 protected:
  // Calls, and expects both status lines to show the addresses in use.
  void ExpectCall(const QString& host, const QString& bobs, const QString& alices) {
    ASSERT_TRUE(conversation_.Connect(host)) << host.toStdString();
    EXPECT_EQ(Alice().Status(),
              "Remote computer IP address / port: " + bobs + " / 4000. Active connection.");
    EXPECT_TRUE(Bob().Status().startsWith("Remote computer IP address / port: " + alices + " / "))
        << Bob().Status().toStdString();
    EXPECT_TRUE(Bob().Boxes().back().contains("at address " + alices + ", on port "))
        << Bob().Boxes().back().toStdString();
    Alice().Enter("Over " + host);
    const auto isShown = [&] { return Bob().LinesOfOthers().value(0).endsWith("Over " + host); };
    EXPECT_TRUE(WaitUntil(isShown, kLimit));
  }

  PeerProcess& Alice() { return conversation_.Alice(); }
  PeerProcess& Bob() { return conversation_.Bob(); }

  static constexpr int kLimit = 20'000;  // ms

  TwoMachines machines_{{.delay = 5ms}, 1};
  Conversation conversation_{machines_};
};

TEST_F(AddressTest, AnIPv6AddressCanBeCalled) {
  ExpectCall("fd77::2", "fd77::2", "fd77::1");
}

TEST_F(AddressTest, AnIPv6AddressMayStandInBrackets) {
  ExpectCall("[fd77::2]", "fd77::2", "fd77::1");
}

TEST_F(AddressTest, ALinkLocalAddressCanBeCalledWithItsDevice) {
  ExpectCall("fe80::77:2%cable", "fe80::77:2%cable", "fe80::77:1%cable");
}

TEST_F(AddressTest, ANameWithAnIPv6AddressCanBeCalled) {
  ExpectCall("bob-by-ipv6", "fd77::2", "fd77::1");
}

TEST_F(AddressTest, AnIPv4AddressCanBeCalled) {
  ExpectCall("10.77.0.2", "10.77.0.2", "10.77.0.1");
}

TEST_F(AddressTest, ANameWithAnIPv4AddressCanBeCalled) {
  ExpectCall("bob-by-ipv4", "10.77.0.2", "10.77.0.1");
}

TEST_F(AddressTest, ANameWithBothKindsOfAddressCanBeCalled) {
  ASSERT_TRUE(conversation_.Connect("bob"));
  EXPECT_TRUE(Alice().Status().contains("fd77::2") || Alice().Status().contains("10.77.0.2"))
      << Alice().Status().toStdString();
}

}  // namespace
}  // namespace verlume::network
