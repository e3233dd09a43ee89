#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class WaitForCallTest : public testing::Test, protected fake::TwoSides {
 protected:
  fake::FakeDialogs& dialogs = bob.fake.dialogs;
  fake::FakeMainWindow& window = bob.fake.window;
};

TEST_F(WaitForCallTest, ListensOnTheTypedPort) {
  bob.Wait(u"4000");
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
  EXPECT_EQ(bob.fake.socket.State(), SocketState::Listening);
  EXPECT_EQ(bob.state.LocalPort, 4000);
  EXPECT_EQ(bob.Status(), u"Local port: 4000. Waiting for an incoming call...");
  EXPECT_EQ(window.lblLocalPort.caption, u"4000");
  EXPECT_EQ(bob.Lamp(), 65535);
  EXPECT_TRUE(dialogs.messages.empty() && dialogs.asked.empty());
}

TEST_F(WaitForCallTest, TheStatusIsGreekInGreek) {
  bob.state.IsGreek = true;
  bob.Wait(u"4000");
  EXPECT_EQ(bob.Status(), u"Τοπική θύρα: 4000. Αναμονή για εισερχόμενη κλήση...");
}

TEST_F(WaitForCallTest, WithoutPortTheSystemChoosesAndItIsShown) {
  for (const auto rest : {u"", u"0"}) {
    bob.Wait(rest);
    EXPECT_GT(bob.state.LocalPort, 0);
    EXPECT_EQ(window.lblLocalPort.caption, DecimalText(bob.state.LocalPort));
    EXPECT_EQ(bob.Status(), u"Local port: " + DecimalText(bob.state.LocalPort) +
                                u". Waiting for an incoming call...");
    bob.actions.CancelWaitOrCall();
  }
}

TEST_F(WaitForCallTest, AWordThatIsNoNumberIsToldFirstAndThenAsked) {
  dialogs.typed = {u"still none", u"4000"};
  bob.Wait(u"port");
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[0].text, u"The port number you typed, is wrong.");
  EXPECT_EQ(dialogs.messages[0].title, u"Incoming call port");
  ASSERT_EQ(dialogs.asked.size(), 2u);
  EXPECT_EQ(dialogs.asked[0].defaultText, u"");
  EXPECT_EQ(bob.state.LocalPort, 4000);
}

TEST_F(WaitForCallTest, TheWholeRestIsThePort) {
  dialogs.typed = {u""};
  bob.Wait(u"4000 x");
  EXPECT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
}

TEST_F(WaitForCallTest, ABlankBehindTheWordIsAnEmptyPort) {
  dialogs.typed = {u"4000"};
  bob.actions.WaitForCall(u"/WAIT ");
  EXPECT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(bob.state.LocalPort, 4000);
}

TEST_F(WaitForCallTest, APortAbove32767IsReported) {
  dialogs.answers = {Answer::No};
  bob.Wait(u"32768");
  EXPECT_EQ(dialogs.messages.back().title, u"Verlume, 205.");
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
}

TEST_F(WaitForCallTest, APortInUseIsReportedAndLeavesIdle) {
  alice.Wait(u"4000");
  bob.Wait(u"4001");
  dialogs.answers = {Answer::Yes, Answer::No};
  bob.Wait(u"4000");
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[1].title, u"Verlume, 205.");
  EXPECT_NE(dialogs.messages[1].text.find(u"10048 with the description 'Address in use'"),
            std::u16string::npos);
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.Lamp(), 255);
  EXPECT_EQ(bob.Status(), u"");
}

TEST_F(WaitForCallTest, AFailureInIdleLeavesTheStatusLine) {
  bob.Wait(u"4001");
  bob.actions.CancelWaitOrCall();
  const std::u16string status = bob.Status();
  dialogs.answers = {Answer::No};
  bob.Wait(u"40000");
  EXPECT_EQ(bob.Status(), status);
}

TEST_F(WaitForCallTest, TheLineGoesToTheDialogueAndTheCommandPaneIsEmptied) {
  bob.state.OutgoingText = u"/WAIT";
  window.rtbCommands.SetText(u"/WAIT");
  bob.Wait(u"");
  EXPECT_EQ(bob.DialoguePane(), u"<Bob>/WAIT");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
}

TEST_F(WaitForCallTest, WhileConnectedItIsRefused) {
  Connect();
  dialogs.messages.clear();
  bob.Wait(u"4001");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(bob.State(), ConnectionState::Connected);
}

TEST_F(WaitForCallTest, AnotherPortIsSetOnlyOnYes) {
  bob.Wait(u"4000");
  dialogs.answers = {Answer::No, Answer::Yes};
  bob.Wait(u"4001");
  EXPECT_EQ(bob.state.LocalPort, 4000);
  bob.Wait(u"4001");
  EXPECT_EQ(bob.state.LocalPort, 4001);
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
  alice.Wait(u"4000");  // the port is free again
  EXPECT_EQ(alice.State(), ConnectionState::Waiting);
}

TEST_F(WaitForCallTest, ACallIsCancelledOnlyOnYes) {
  bob.Call(u"alice 4001");
  dialogs.answers = {Answer::No, Answer::Yes};
  bob.Wait(u"4000");
  EXPECT_EQ(bob.State(), ConnectionState::Calling);
  bob.Wait(u"4000");
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
  EXPECT_EQ(window.lblRemoteIP.caption, u"");
}

TEST_F(WaitForCallTest, ACallAcceptedWhileThePortIsTypedIsNotDropped) {
  bob.Wait(u"4000");
  alice.Call(u"bob 4000");
  dialogs.typed = {u"4001"};
  dialogs.answers = {Answer::Yes, Answer::Yes};  // another port; then, over it, the call
  dialogs.whileOpen = [this] {
    if (!dialogs.asked.empty()) network.RunUntilIdle();
  };
  bob.Wait(u"port");
  EXPECT_EQ(bob.State(), ConnectionState::Connected);
  EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Stop);
}

}  // namespace
}  // namespace verlume
