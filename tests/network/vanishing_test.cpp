// A peer whose cable is pulled: nothing tells the program that it has gone.
#include <gtest/gtest.h>

#include <iostream>

#include "network/two_machines.h"

namespace verlume::network {
namespace {

using namespace std::chrono_literals;

constexpr int kIdleLimit = 30'000;            // ms
constexpr int kUnacknowledgedLimit = 20'000;  // ms
constexpr auto kRed = "255";

class VanishingTest : public testing::Test {
 protected:
  void Connect() {
    ASSERT_TRUE(conversation_.Connect(TwoMachines::kBobIPv4));
    // The messages of the handshake have arrived, so that the connection is idle.
    Alice().Enter("hello");
    ASSERT_TRUE(WaitUntil([&] { return Bob().LinesOfOthers().size() == 1; }, kIdleLimit));
    Bob().Enter("hello");
    ASSERT_TRUE(WaitUntil([&] { return Alice().LinesOfOthers().size() == 1; }, kIdleLimit));
    ASSERT_TRUE(WaitUntil([&] { return Alice().Waiting() + Bob().Waiting() == ""; }, kIdleLimit));
  }

  // Waits until the program has ended the connection, as after Close.
  static void ExpectCloseWithin(const PeerProcess& peer, const char* partner, int limit) {
    QElapsedTimer time;
    time.start();
    ASSERT_TRUE(WaitUntil([&] { return peer.Status().endsWith(". Disconnected."); }, limit))
        << peer.Status().toStdString();
    std::cout << "noticed after " << time.elapsed() << " ms" << std::endl;
    EXPECT_EQ(peer.Lamp(), kRed);
    EXPECT_EQ(peer.Waiting(), "");
    EXPECT_TRUE(peer.Log(partner).contains(peer.Status() + "\r\n"))
        << peer.Log(partner).toStdString();
  }
  static void ExpectToBeUsable(PeerProcess& peer) {
    const auto boxes = peer.Boxes();
    peer.Enter("/WAIT 4001");
    EXPECT_TRUE(WaitUntil([&] { return peer.Status().endsWith("incoming call..."); }, kIdleLimit));
    EXPECT_EQ(peer.Boxes(), boxes);
  }

  PeerProcess& Alice() { return conversation_.Alice(); }
  PeerProcess& Bob() { return conversation_.Bob(); }

  TwoMachines machines_{{.delay = 20ms}, 1};
  Conversation conversation_{machines_};
};

TEST_F(VanishingTest, IsNoticedWithinHalfAMinuteOnAnIdleConnection) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  machines_.Cable().Cut();
  QElapsedTimer time;
  time.start();
  ASSERT_NO_FATAL_FAILURE(ExpectCloseWithin(Alice(), "Bfirst", kIdleLimit));
  const int left = kIdleLimit - static_cast<int>(time.elapsed());
  ASSERT_NO_FATAL_FAILURE(ExpectCloseWithin(Bob(), "Afirst", left));
  EXPECT_FALSE(Alice().StatusToolTip().contains("not delivered"));
  ExpectToBeUsable(Alice());
  ExpectToBeUsable(Bob());
}

TEST_F(VanishingTest, IsNoticedWithinTwentySecondsOfAnUnacknowledgedLine) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  machines_.Cable().Cut();
  Alice().Enter("are you there?");
  Alice().Enter("/NICK Anybody");
  Alice().Enter("hello?");
  ASSERT_NO_FATAL_FAILURE(ExpectCloseWithin(Alice(), "Bfirst", kUnacknowledgedLimit));
  EXPECT_TRUE(Alice().WaitingSoFar().contains("2 waiting"));
  EXPECT_TRUE(Alice().StatusToolTip().contains("2 lines were not delivered."))
      << Alice().StatusToolTip().toStdString();
  EXPECT_TRUE(Alice().Log("Bfirst").contains("2 lines were not delivered."))
      << Alice().Log("Bfirst").toStdString();
  ExpectToBeUsable(Alice());
}

TEST_F(VanishingTest, ACallThatNobodyAnswersEnds) {
  ASSERT_TRUE(WaitUntil([&] { return Alice().IsReady(); }, kIdleLimit));
  machines_.Cable().Cut();
  Alice().Enter(QString("/CALL %1 4000").arg(TwoMachines::kBobIPv4));
  EXPECT_TRUE(
      WaitUntil([&] { return Alice().Status().endsWith("A connection could NOT be established."); },
                kUnacknowledgedLimit));
  EXPECT_EQ(Alice().Lamp(), kRed);
  ExpectToBeUsable(Alice());
}

TEST_F(VanishingTest, AShortStallDoesNotEndTheConnection) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  machines_.Cable().Stall(5s);
  Alice().Enter("slow today");
  ASSERT_TRUE(WaitUntil([&] { return Bob().LinesOfOthers().size() == 2; }, kIdleLimit));
  EXPECT_EQ(Bob().LinesOfOthers().back(), "<Afirst>slow today");
  EXPECT_TRUE(Alice().IsConnected() && Bob().IsConnected());
  EXPECT_TRUE(WaitUntil([&] { return Alice().Waiting() == ""; }, kIdleLimit));
}

}  // namespace
}  // namespace verlume::network
