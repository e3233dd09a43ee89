#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class CancelAndCloseTest : public testing::Test, protected fake::TwoSides {
 protected:
  void HoldCommand(std::u16string_view text) {
    alice.state.OutgoingText = text;
    window.rtbCommands.SetText(text);
  }
  fake::FakeDialogs& dialogs = alice.fake.dialogs;
  fake::FakeMainWindow& window = alice.fake.window;
};

TEST_F(CancelAndCloseTest, CancelStopsAWait) {
  alice.Wait(u"4000");
  HoldCommand(u"/CANCEL");
  alice.actions.CancelWaitOrCall();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.fake.socket.State(), SocketState::Closed);
  EXPECT_EQ(alice.Status(), u"Local port: 4000. You stopped waiting for an incoming call.");
  EXPECT_EQ(alice.DialoguePane(), u"<Alice>/CANCEL");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
}

TEST_F(CancelAndCloseTest, CancelStopsACall) {
  alice.Call(u"bob 4000");
  HoldCommand(u"/CANCEL");
  alice.actions.CancelWaitOrCall();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Status(), u"Remote computer / port: bob / 4000. You cancelled the call.");
  EXPECT_EQ(alice.DialoguePane(), u"<Alice>/CANCEL");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
}

TEST_F(CancelAndCloseTest, CancelSpeaksGreek) {
  alice.state.IsGreek = true;
  alice.Wait(u"4000");
  alice.actions.CancelWaitOrCall();
  EXPECT_EQ(alice.Status(), u"Τοπική θύρα: 4000. Διακόψατε την αναμονή για εισερχόμενη κλήση.");
  alice.Call(u"bob 4000");
  alice.actions.CancelWaitOrCall();
  EXPECT_EQ(alice.Status(), u"Απομακρυσμένος υπολογιστής / θύρα: bob / 4000. Ακυρώσατε την κλήση.");
}

TEST_F(CancelAndCloseTest, CancelWhileConnectedOnlyInforms) {
  Connect();
  HoldCommand(u"/CANCEL");
  alice.actions.CancelWaitOrCall();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].title, u"Command '/CANCEL'");
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
  EXPECT_EQ(alice.fake.socket.State(), SocketState::Connected);
  EXPECT_EQ(window.rtbCommands.Text(), u"");
  EXPECT_EQ(alice.DialoguePane(), u"");
}

TEST_F(CancelAndCloseTest, CancelWhileIdleOnlyInforms) {
  HoldCommand(u"/CANCEL");
  alice.actions.CancelWaitOrCall();
  EXPECT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(window.rtbCommands.Text(), u"");
  EXPECT_EQ(alice.DialoguePane(), u"");
}

TEST_F(CancelAndCloseTest, CloseEndsTheConversationOnBothSides) {
  Connect();
  HoldCommand(u"/CLOSE");
  alice.actions.CloseConnection();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Lamp(), 255);
  EXPECT_EQ(alice.Status(), u"Remote computer IP address / port: 192.0.2.2 / 4000. Disconnected.");
  EXPECT_EQ(alice.DialoguePane(), u"<Alice>/CLOSE");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
  network.RunUntilIdle();
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
}

TEST_F(CancelAndCloseTest, CloseWritesTheLogAndClosesIt) {
  alice.RecordDialogues();
  alice.state.IsGreek = true;
  Connect();
  alice.actions.CloseConnection();
  EXPECT_EQ(alice.LogOf(u"Bob"),
            u"[2026-03-07_09:05:30]***** Διεύθυνση IP απομακρυσμένου υπολογιστή / θύρα: "
            u"192.0.2.2 / 4000. Ενεργός σύνδεση.\r\n"
            u"[2026-03-07_09:05:30]***** Διεύθυνση IP απομακρυσμένου υπολογιστή / θύρα: "
            u"192.0.2.2 / 4000. Αποσυνδεθήκατε.\r\n");
  EXPECT_FALSE(alice.state.LogOpen);
}

TEST_F(CancelAndCloseTest, CloseWithoutConnectionOnlyInforms) {
  for (const ConnectionState state :
       {ConnectionState::Idle, ConnectionState::Waiting, ConnectionState::Calling}) {
    dialogs.messages.clear();
    if (state == ConnectionState::Waiting) alice.Wait(u"4000");
    if (state == ConnectionState::Calling) alice.Call(u"bob 4000");
    alice.actions.CloseConnection();
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title, u"Command '/CLOSE'");
    EXPECT_EQ(alice.State(), state);
    ResetConnection(alice.state, alice.fake.platform);
  }
}

}  // namespace
}  // namespace verlume
