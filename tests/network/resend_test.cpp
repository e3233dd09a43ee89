// A network that goes away in the middle of a conversation, as when a computer sleeps, and comes
// back: what was lost is offered, and arrives.
#include <gtest/gtest.h>

#include <iostream>

#include "network/two_machines.h"

namespace verlume::network {
namespace {

using namespace std::chrono_literals;

constexpr int kResendLimit = 30'000;  // ms
constexpr int kNoticeLimit = 20'000;  // ms, until a line that does not arrive ends it

class ResendNetworkTest : public testing::TestWithParam<Talk> {
 protected:
  void Connect() {
    ASSERT_TRUE(conversation_.Connect(TwoMachines::kBobIPv4));
    Alice().Enter("hello");
    ASSERT_TRUE(WaitUntil([&] { return Bob().LinesOfOthers().size() == 1; }, kResendLimit));
    ASSERT_TRUE(WaitUntil([&] { return Alice().Waiting() + Bob().Waiting() == ""; }, kResendLimit));
  }
  // Both say something while no frame arrives, until both have noticed.
  void LoseLinesOfBoth() {
    machines_.Cable().Cut();
    QElapsedTimer time;
    time.start();
    for (const char* line : {"one", "/ME waves", "three"}) Alice().Enter(line);
    Bob().Enter("four");
    const auto haveNoticed = [&] {
      return Alice().AgainBar().endsWith("3 lines were not delivered.") &&
             Bob().AgainBar().endsWith("1 line was not delivered.");
    };
    ASSERT_TRUE(WaitUntil(haveNoticed, kNoticeLimit))
        << Alice().AgainBar().toStdString() << Bob().AgainBar().toStdString();
    std::cout << "noticed after " << time.elapsed() << " ms" << std::endl;
    machines_.Cable().Mend();
  }
  void CallAgain() {
    Bob().Click("cmdAgain");
    ASSERT_TRUE(
        WaitUntil([&] { return Bob().Status().endsWith("incoming call..."); }, kResendLimit));
    QElapsedTimer time;
    time.start();
    Alice().Click("cmdAgain");
    ASSERT_TRUE(
        WaitUntil([&] { return Alice().IsConnected() && Bob().IsConnected(); }, kResendLimit));
    std::cout << "connected again after " << time.elapsed() << " ms" << std::endl;
  }

  PeerProcess& Alice() { return conversation_.Alice(); }
  PeerProcess& Bob() { return conversation_.Bob(); }

  TwoMachines machines_{{.delay = 20ms}, 1, GetParam()};
  Conversation conversation_{machines_};
};

TEST_P(ResendNetworkTest, WhatTheNetworkLostArrivesInOrderAtAClick) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  ASSERT_NO_FATAL_FAILURE(LoseLinesOfBoth());
  ASSERT_NO_FATAL_FAILURE(CallAgain());
  ASSERT_TRUE(WaitUntil([&] { return Alice().ResendBar() != "" && Bob().ResendBar() != ""; },
                        kResendLimit));
  EXPECT_EQ(Alice().ResendBar(), "3 lines were not delivered to Bfirst: one");
  EXPECT_EQ(Bob().ResendBar(), "1 line was not delivered to Afirst: four");
  EXPECT_EQ(Bob().LinesOfOthers().size(), 1) << "nothing goes out by itself";

  Alice().Click("cmdResend");
  Bob().Click("cmdResend");
  ASSERT_TRUE(WaitUntil([&] { return Bob().LinesOfOthers().size() == 4; }, kResendLimit));
  EXPECT_EQ(Bob().LinesOfOthers().join('|'),
            "<Afirst>hello|<Afirst>one| Afirst waves|<Afirst>three");
  ASSERT_TRUE(WaitUntil([&] { return Alice().LinesOfOthers().size() == 1; }, kResendLimit));
  EXPECT_EQ(Alice().LinesOfOthers().join('|'), "<Bfirst>four");
  EXPECT_TRUE(
      WaitUntil([&] { return Alice().Waiting() + Alice().ResendBar() == ""; }, kResendLimit));
}

INSTANTIATE_TEST_SUITE_P(Talks, ResendNetworkTest, testing::Values(Talk::InClear, Talk::InPrivate),
                         [](const testing::TestParamInfo<Talk>& talk) {
                           return talk.param == Talk::InClear ? "InClear" : "InPrivate";
                         });

}  // namespace
}  // namespace verlume::network
