#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "connection/socket_events.h"
#include "support/side.h"

namespace verlume {
namespace {

constexpr const char16_t* kWaiting = u"Local port: 4000. Waiting for an incoming call...";
constexpr const char16_t* kRejected =
    u"Remote computer IP address / Local port: 192.0.2.1 / 4000. You rejected the incoming call.";

class KeepWaitingTest : public testing::Test, protected fake::TwoSides {
 protected:
  KeepWaitingTest() { bob.Wait(u"4000"); }

  // Alice calls, and Bob answers if he is asked. Returns how often he was.
  std::size_t CallAndAnswer(Answer answer, std::optional<bool> tick = {}) {
    const std::size_t asked = box.messages.size();
    box.answers = {answer};
    box.setsTick = tick;
    alice.Call(u"bob 4000");
    network.RunUntilIdle();
    box.answers.clear();
    return box.messages.size() - asked;
  }
  void RefuseThreeTimes() {
    for (int i = 0; i < 3; ++i) EXPECT_EQ(CallAndAnswer(Answer::No, true), 1u);
  }
  void Pass(int seconds) {
    for (; seconds > 0; --seconds) bob.events.tmrTimer_Timer();
  }
  std::u16string ToolTip() const { return bob.fake.window.lblStatus.toolTip; }

  fake::FakeDialogs& box = bob.fake.dialogs;
};

TEST_F(KeepWaitingTest, TheTickIsOfferedUnset) {
  CallAndAnswer(Answer::No);
  ASSERT_EQ(box.ticksShown.size(), 1u);
  EXPECT_EQ(box.ticksShown[0].text, u"&Keep waiting");
  EXPECT_FALSE(box.ticksShown[0].isSet);
}

TEST_F(KeepWaitingTest, ItSpeaksGreek) {
  bob.state.IsGreek = true;
  CallAndAnswer(Answer::No);
  EXPECT_EQ(box.ticksShown[0].text, u"&Συνέχιση της αναμονής");
}

TEST_F(KeepWaitingTest, WithoutItNoEndsTheWait) {
  CallAndAnswer(Answer::No);
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.Status(), kRejected);
}

TEST_F(KeepWaitingTest, WithItNoClosesThatCallerOnly) {
  CallAndAnswer(Answer::No, true);
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
  EXPECT_EQ(bob.fake.socket.State(), SocketState::Listening);
  EXPECT_EQ(bob.state.LocalPort, 4000);
  EXPECT_EQ(bob.Status(), kWaiting);
  EXPECT_EQ(bob.fake.window.lblRemoteIP.caption, u"");
  EXPECT_EQ(bob.fake.window.lblRemotePort.caption, u"");
  EXPECT_EQ(bob.fake.window.lblLocalPort.caption, u"4000");
  EXPECT_EQ(bob.Lamp(), 65535);
}

TEST_F(KeepWaitingTest, TheNextCallerCanBeAccepted) {
  CallAndAnswer(Answer::No, true);
  EXPECT_EQ(CallAndAnswer(Answer::Yes), 1u);
  EXPECT_EQ(bob.State(), ConnectionState::Connected);
}

TEST_F(KeepWaitingTest, ItIsRememberedWhateverTheAnswer) {
  CallAndAnswer(Answer::Yes, true);
  ASSERT_EQ(bob.State(), ConnectionState::Connected);
  bob.actions.CloseConnection();
  network.RunUntilIdle();
  bob.Wait(u"4000");
  CallAndAnswer(Answer::No);
  EXPECT_TRUE(box.ticksShown.back().isSet);
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
}

TEST_F(KeepWaitingTest, TakenAwayAgainNoEndsTheWait) {
  CallAndAnswer(Answer::No, true);
  CallAndAnswer(Answer::No, false);
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.Status(), kRejected);
}

TEST_F(KeepWaitingTest, AWaitThatEndedUnderTheBoxStaysEnded) {
  box.whileOpen = [this] { bob.actions.CancelWaitOrCall(); };
  CallAndAnswer(Answer::No, true);
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.Status(), u"Local port: 4000. You stopped waiting for an incoming call.");
}

TEST_F(KeepWaitingTest, WhoWasRefusedThreeTimesIsTurnedAwayUnasked) {
  RefuseThreeTimes();
  bob.fake.window.rtbCommands.timesFocused = 0;
  EXPECT_EQ(CallAndAnswer(Answer::Yes), 0u);
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
  EXPECT_EQ(bob.Status(), kWaiting);
  EXPECT_EQ(bob.fake.window.lblRemoteIP.caption, u"");
  EXPECT_EQ(bob.fake.window.rtbCommands.timesFocused, 0);
}

TEST_F(KeepWaitingTest, TheStatusLinesToolTipSaysWhoIsTurnedAway) {
  RefuseThreeTimes();
  EXPECT_TRUE(ToolTip().ends_with(u": Calls from 192.0.2.1 are turned away.")) << ToolTip().size();
  bob.state.TurnedAway.emplace_back(u"192.0.2.9");
  bob.state.IsGreek = true;
  ResetConnection(bob.state, bob.fake.platform);
  EXPECT_TRUE(ToolTip().ends_with(u": Οι κλήσεις από 192.0.2.1 και 1 ακόμη απορρίπτονται."));
}

TEST_F(KeepWaitingTest, TheToolTipSaysBothWhatWasLostAndWhoIsTurnedAway) {
  bob.state.LinesUndelivered = 2;
  RefuseThreeTimes();
  EXPECT_TRUE(
      ToolTip().ends_with(u": 2 lines were not delivered. Calls from 192.0.2.1 are turned away."));
}

TEST_F(KeepWaitingTest, AfterTenMinutesTheUserIsAskedAgain) {
  RefuseThreeTimes();
  Pass(599);
  EXPECT_EQ(CallAndAnswer(Answer::No), 0u);
  Pass(1);
  EXPECT_FALSE(ToolTip().ends_with(u"turned away."));
  EXPECT_EQ(CallAndAnswer(Answer::No), 1u);
}

TEST_F(KeepWaitingTest, RefusalsFarApartDoNotCount) {
  CallAndAnswer(Answer::No, true);
  CallAndAnswer(Answer::No, true);
  Pass(61);
  CallAndAnswer(Answer::No, true);
  EXPECT_EQ(CallAndAnswer(Answer::No), 1u);
}

TEST_F(KeepWaitingTest, WithoutTheTickNobodyIsTurnedAway) {
  RefuseThreeTimes();
  bob.fake.socket.localIP = u"192.0.2.2";
  alice.fake.socket.localIP = u"192.0.2.7";
  CallAndAnswer(Answer::No, false);
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  bob.Wait(u"4000");
  alice.fake.socket.localIP = u"192.0.2.1";
  EXPECT_EQ(CallAndAnswer(Answer::No), 1u);
}

TEST_F(KeepWaitingTest, RefusalsThatEndedTheWaitDoNotCount) {
  for (int i = 0; i < 3; ++i) {
    CallAndAnswer(Answer::No, false);
    bob.Wait(u"4000");
  }
  EXPECT_EQ(CallAndAnswer(Answer::No, true), 1u);
}

}  // namespace
}  // namespace verlume
