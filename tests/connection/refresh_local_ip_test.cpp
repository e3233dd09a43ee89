#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class RefreshLocalIPTest : public testing::Test, protected fake::TwoSides {
 protected:
  void Move() { alice.fake.socket.localIP = u"198.51.100.7"; }

  fake::FakeDialogs& dialogs = alice.fake.dialogs;
  fake::FakeMainWindow& window = alice.fake.window;
};

TEST_F(RefreshLocalIPTest, AnUnchangedAddressOnlyInformsWhateverTheState) {
  const auto refresh = [this](ConnectionState state) {
    dialogs.messages.clear();
    alice.actions.RefreshLocalIP();
    EXPECT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(alice.State(), state);
  };
  refresh(ConnectionState::Idle);
  alice.Wait(u"4001");
  refresh(ConnectionState::Waiting);
  dialogs.answers = {Answer::Yes};
  Connect();
  refresh(ConnectionState::Connected);
}

TEST_F(RefreshLocalIPTest, ANewAddressIsShownAndTheRestEmptied) {
  Connect();
  alice.actions.CloseConnection();
  Move();
  alice.state.OutgoingText = u"/REFRESH";
  window.rtbCommands.SetText(u"/REFRESH");
  alice.actions.RefreshLocalIP();
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(alice.state.LocalAddress, u"198.51.100.7");
  EXPECT_EQ(window.lblLocalIP.caption, u"198.51.100.7");
  EXPECT_EQ(window.lblRemoteNickname.caption, u"");
  EXPECT_EQ(window.lblBytesSent.caption, u"");
  EXPECT_EQ(window.lblBytesSent.tag, u"");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
  EXPECT_EQ(alice.DialoguePane(), u"<Alice>/REFRESH");
}

TEST_F(RefreshLocalIPTest, WhileConnectedItIsRefused) {
  Connect();
  Move();
  alice.actions.RefreshLocalIP();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
  EXPECT_EQ(alice.state.LocalAddress, u"192.0.2.1");
}

TEST_F(RefreshLocalIPTest, AWaitIsGivenUpOnlyOnYes) {
  alice.Wait(u"4000");
  Move();
  dialogs.answers = {Answer::No, Answer::Yes};
  alice.actions.RefreshLocalIP();
  EXPECT_EQ(alice.State(), ConnectionState::Waiting);
  EXPECT_EQ(alice.state.LocalAddress, u"192.0.2.1");
  alice.actions.RefreshLocalIP();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.state.LocalAddress, u"198.51.100.7");
}

TEST_F(RefreshLocalIPTest, ACallIsGivenUpOnlyOnYes) {
  alice.Call(u"bob 4000");
  Move();
  dialogs.answers = {Answer::No, Answer::Yes};
  alice.actions.RefreshLocalIP();
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  alice.actions.RefreshLocalIP();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(window.lblLocalIP.caption, u"198.51.100.7");
}

TEST_F(RefreshLocalIPTest, ACallAnsweredDuringTheQuestionIsNotDropped) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  Move();
  dialogs.answers = {Answer::Yes};
  dialogs.whileOpen = [this] { network.RunUntilIdle(); };
  alice.actions.RefreshLocalIP();
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
  EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Stop);
}

TEST_F(RefreshLocalIPTest, AnAddressThatMovesOnDuringTheQuestionIsReadAgain) {
  alice.Wait(u"4000");
  Move();
  dialogs.answers = {Answer::Yes};
  dialogs.whileOpen = [this] { alice.fake.socket.localIP = u"198.51.100.8"; };
  alice.actions.RefreshLocalIP();
  EXPECT_EQ(alice.state.LocalAddress, u"198.51.100.8");
}

}  // namespace
}  // namespace verlume
