#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class ConfirmExitTest : public testing::Test, protected fake::TwoSides {
 protected:
  fake::FakeDialogs& dialogs = alice.fake.dialogs;
  fake::FakeMainWindow& window = alice.fake.window;
};

TEST_F(ConfirmExitTest, IdleNeedsNoQuestion) {
  alice.actions.ConfirmExit();
  EXPECT_TRUE(alice.state.ExitConfirmed);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ConfirmExitTest, NoKeepsEverythingAndEmptiesTheCommandPane) {
  Connect();
  const std::u16string status = alice.Status();
  window.rtbCommands.SetText(u"/EXIT");
  alice.state.ExitConfirmed = true;  // left from before
  dialogs.answers = {Answer::No};
  alice.actions.ConfirmExit();
  EXPECT_FALSE(alice.state.ExitConfirmed);
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
  EXPECT_EQ(alice.Status(), status);
  EXPECT_EQ(window.rtbCommands.Text(), u"");
}

TEST_F(ConfirmExitTest, YesGivesUpAWaitWithoutTouchingIt) {
  alice.Wait(u"4000");
  dialogs.answers = {Answer::Yes};
  alice.actions.ConfirmExit();
  EXPECT_TRUE(alice.state.ExitConfirmed);
  EXPECT_EQ(alice.Status(), u"Local port: 4000. Waiting for an incoming call...");
  EXPECT_EQ(alice.fake.socket.State(), SocketState::Listening);
}

TEST_F(ConfirmExitTest, YesWhileConnectedRecordsTheEndButClosesNothing) {
  alice.RecordDialogues();
  Connect();
  dialogs.answers = {Answer::Yes};
  alice.actions.ConfirmExit();
  EXPECT_TRUE(alice.state.ExitConfirmed);
  EXPECT_EQ(alice.Status(), u"Remote computer IP address / port: 192.0.2.2 / 4000. Disconnected.");
  EXPECT_TRUE(alice.LogOf(u"Bob").ends_with(
      u"[2026-03-07_09:05:30]***** Remote computer IP address / port: 192.0.2.2 / 4000. "
      u"Disconnected.\r\n"));
  EXPECT_FALSE(alice.state.LogOpen);
  EXPECT_EQ(alice.fake.socket.State(), SocketState::Connected);
}

TEST_F(ConfirmExitTest, APeerThatLeavesDuringTheQuestionIsRecordedOnce) {
  alice.RecordDialogues();
  Connect();
  dialogs.answers = {Answer::Yes};
  dialogs.whileOpen = [this] {
    bob.actions.CloseConnection();
    network.RunUntilIdle();
  };
  alice.actions.ConfirmExit();
  EXPECT_TRUE(alice.state.ExitConfirmed);
  EXPECT_EQ(dialogs.messages.size(), 1u);
  const std::u16string log = alice.LogOf(u"Bob");
  EXPECT_EQ(log.find(u"Disconnected."), log.rfind(u"Disconnected."));
  EXPECT_NE(log.find(u"Disconnected."), log.npos);
}

TEST_F(ConfirmExitTest, ACallAnsweredDuringTheQuestionIsAskedAboutAnew) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  dialogs.answers = {Answer::Yes, Answer::No};
  dialogs.whileOpen = [this] { network.RunUntilIdle(); };
  alice.actions.ConfirmExit();
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_TRUE(dialogs.messages[1].text.starts_with(u"You are curently connected"));
  EXPECT_FALSE(alice.state.ExitConfirmed);
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
}

}  // namespace
}  // namespace verlume
