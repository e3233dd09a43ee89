#include "platform_qt/os/open_socket.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>
#include <thread>

#include "platform_qt/os/default_gateways.h"
#include "platform_qt/os/machine_addresses.h"
#include "platform_qt/os/wake_up.h"

namespace verlume::qt {
namespace {

constexpr int kPatience = 10'000;  // milliseconds

Ipv4 ThisMachine() {
  return *ParseIpv4("127.0.0.1");
}

bool CanBeRead(SocketNumber socket, int milliseconds = 0) {
  return WaitForSocket(socket, Readiness::Read, kNoSocket, milliseconds).isReady;
}

OpenSocket BoundDatagrams() {
  OpenSocket socket = OpenSocket::Datagrams();
  EXPECT_TRUE(socket.Bind({ThisMachine(), 0}));
  return socket;
}

TEST(OpenSocket, DatagramsSayWhoSentThem) {
  const OpenSocket one = BoundDatagrams();
  const OpenSocket other = BoundDatagrams();
  std::array<char, 64> bytes{};
  Ipv4Place sender;
  EXPECT_EQ(other.ReceiveFrom(bytes, sender).step, SocketStep::Later);
  EXPECT_EQ(one.SendTo("hello", *other.LocalPlace()).size, 5u);
  ASSERT_TRUE(CanBeRead(other.Number(), kPatience));
  const SocketBytes came = other.ReceiveFrom(bytes, sender);
  EXPECT_EQ(std::string_view(bytes.data(), came.size), "hello");
  EXPECT_EQ(sender, *one.LocalPlace());
}

TEST(OpenSocket, ALongDatagramIsCut) {
  const OpenSocket one = BoundDatagrams();
  const OpenSocket other = BoundDatagrams();
  std::array<char, 4> bytes{};
  one.SendTo("too long", *other.LocalPlace());
  ASSERT_TRUE(CanBeRead(other.Number(), kPatience));
  const SocketBytes came = other.Receive(bytes);
  EXPECT_EQ(came.step, SocketStep::Done);
  EXPECT_EQ(std::string_view(bytes.data(), came.size), "too ");
  EXPECT_EQ(other.Receive(bytes).step, SocketStep::Later) << "the rest is lost";
}

TEST(OpenSocket, AJoinedOneHearsItsPeerAlone) {
  const OpenSocket one = BoundDatagrams();
  const OpenSocket peer = BoundDatagrams();
  const OpenSocket stranger = BoundDatagrams();
  ASSERT_EQ(one.Connect(*peer.LocalPlace()), SocketStep::Done);
  stranger.SendTo("stranger", *one.LocalPlace());
  peer.SendTo("peer", *one.LocalPlace());
  ASSERT_TRUE(CanBeRead(one.Number(), kPatience));
  std::array<char, 64> bytes{};
  const SocketBytes came = one.Receive(bytes);
  EXPECT_EQ(std::string_view(bytes.data(), came.size), "peer");
  EXPECT_EQ(one.Receive(bytes).step, SocketStep::Later);
}

TEST(OpenSocket, AConnectionThatNobodyTakesDoesNotCome) {
  const OpenSocket taken = OpenSocket::Stream();
  ASSERT_TRUE(taken.Bind({ThisMachine(), 0}));  // bound, but it does not listen
  const OpenSocket caller = OpenSocket::Stream();
  const SocketStep step = caller.Connect(*taken.LocalPlace());
  if (step == SocketStep::Later) {
    EXPECT_TRUE(WaitForSocket(caller.Number(), Readiness::Write, kNoSocket, kPatience).isReady);
    EXPECT_FALSE(caller.HasConnected());
  } else {
    EXPECT_EQ(step, SocketStep::Failed);
  }
}

TEST(OpenSocket, WaitingEndsWithTheTime) {
  const OpenSocket silent = BoundDatagrams();
  const Waited waited = WaitForSocket(silent.Number(), Readiness::Read, kNoSocket, 20);
  EXPECT_FALSE(waited.isReady);
  EXPECT_FALSE(waited.isInterrupted);
  EXPECT_TRUE(WaitForSocket(silent.Number(), Readiness::Write, kNoSocket, kPatience).isReady);
}

TEST(WakeUp, CanBeReadBetweenRingAndClear) {
  const WakeUp wakeUp;
  ASSERT_TRUE(wakeUp.IsOpen());
  EXPECT_FALSE(CanBeRead(wakeUp.Number()));
  for (int i = 0; i < 10'000; ++i) wakeUp.Ring();  // never full
  EXPECT_TRUE(CanBeRead(wakeUp.Number(), kPatience));
  wakeUp.Clear();
  EXPECT_FALSE(CanBeRead(wakeUp.Number()));
  wakeUp.Ring();
  EXPECT_TRUE(CanBeRead(wakeUp.Number(), kPatience));
}

TEST(WakeUp, InterruptsAWait) {
  const WakeUp wakeUp;
  const OpenSocket silent = BoundDatagrams();
  std::thread waker([&wakeUp] { wakeUp.Ring(); });
  const Waited waited = WaitForSocket(silent.Number(), Readiness::Read, wakeUp.Number(), kPatience);
  waker.join();
  EXPECT_TRUE(waited.isInterrupted);
  EXPECT_FALSE(waited.isReady);
}

TEST(DefaultGateways, ThePreferredComesFirstAndEachOnce) {
  const std::vector<Ipv4> expected = {2, 1, 3};
  EXPECT_EQ(PreferredGateways({{20, 1}, {10, 2}, {30, 2}, {20, 3}}), expected);
  EXPECT_EQ(PreferredGateways({{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}}).size(), kMostGateways);
  for (const Ipv4 gateway : DefaultGateways()) EXPECT_NE(gateway, kNoIpv4);
}

TEST(MachineAddresses, AreAddressesOfNamedInterfaces) {
  for (const NetworkAddress& each : MachineAddresses()) {
    EXPECT_FALSE(each.interfaceName.empty());
    const std::string text(each.text.begin(), each.text.end());
    EXPECT_TRUE(ParseIpv4(text) || text.find(':') != text.npos) << text;
    EXPECT_FALSE(ParseIpv4(text) && each.isTemporary) << text;
  }
}

}  // namespace
}  // namespace verlume::qt
