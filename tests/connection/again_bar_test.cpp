// The bar that offers to call or to wait again.
#include "shell/again_bar.h"

#include <gtest/gtest.h>

#include "shell/language.h"
#include "support/side.h"

namespace verlume {
namespace {

class AgainBarTest : public testing::Test, protected fake::TwoSides {
 protected:
  static fake::FakeAgainBar& BarOf(fake::Side& side) { return side.fake.window.againBar; }
  static bool IsShown(fake::Side& side) { return BarOf(side).fraAgain.visible; }
  // Alice called, and the user on the other side ends the conversation.
  void ConnectAndEnd(fake::Side& whoEnds) {
    Connect();
    whoEnds.actions.CloseConnection();
    network.RunUntilIdle();
  }
};

TEST_F(AgainBarTest, WhoCalledMayCallAgain) {
  ConnectAndEnd(bob);
  EXPECT_TRUE(IsShown(alice));
  EXPECT_FALSE(IsShown(bob)) << "who ended it wanted to";
  EXPECT_EQ(BarOf(alice).lblAgain.caption, u"The connection to Bob has ended.");
  EXPECT_EQ(BarOf(alice).fraAgain.accessibleName, u"The connection to Bob has ended.");
  EXPECT_EQ(BarOf(alice).cmdAgain.caption, u"Call again");
  EXPECT_EQ(BarOf(alice).cmdAgain.toolTip, u"Call bob on port 4000");
  alice.actions.cmdAgain_Click();
  EXPECT_EQ(alice.Status(), u"Remote computer / port: bob / 4000. Calling...");
  EXPECT_FALSE(IsShown(alice));
}

TEST_F(AgainBarTest, WhoWaitedMayWaitAgainOnTheSamePort) {
  ConnectAndEnd(alice);
  EXPECT_FALSE(IsShown(alice));
  ASSERT_TRUE(IsShown(bob));
  EXPECT_EQ(BarOf(bob).lblAgain.caption, u"The connection to Alice has ended.");
  EXPECT_EQ(BarOf(bob).cmdAgain.caption, u"Wait again");
  bob.actions.cmdAgain_Click();
  EXPECT_EQ(bob.Status(), u"Local port: 4000. Waiting for an incoming call...");
  EXPECT_FALSE(IsShown(bob));
}

TEST_F(AgainBarTest, APeerWithoutANicknameIsNamedByItsAddress) {
  Connect();
  alice.state.RemoteNickname.clear();
  bob.actions.CloseConnection();
  network.RunUntilIdle();
  EXPECT_EQ(BarOf(alice).lblAgain.caption, u"The connection to 192.0.2.2 has ended.");
}

TEST_F(AgainBarTest, ItWaitsForNoAnswerAndLeavesTheDraftAlone) {
  ConnectAndEnd(bob);
  alice.fake.window.rtbCommands.SetText(u"half typed");
  alice.actions.cmdAgain_Click();
  EXPECT_EQ(alice.fake.window.rtbCommands.Text(), u"half typed");
}

TEST_F(AgainBarTest, AFailedCallOffersNothing) {
  alice.Call(u"bob 4000");
  network.RunUntilIdle();
  ASSERT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_FALSE(IsShown(alice));
}

TEST_F(AgainBarTest, AnyNewAttemptWithdrawsIt) {
  ConnectAndEnd(bob);
  alice.Wait(u"4001");
  EXPECT_FALSE(IsShown(alice));
  alice.actions.CancelWaitOrCall();
  EXPECT_FALSE(IsShown(alice));
}

TEST_F(AgainBarTest, ALineWithdrawsItAndAnEmptyOneDoesNot) {
  ConnectAndEnd(bob);
  alice.dialogue.ClearCommandPane();
  EXPECT_TRUE(IsShown(alice));
  alice.dialogue.WriteDialogueLine(u"{\\rtf1 hello}", Sender::Local, CommandPane::Clear);
  EXPECT_FALSE(IsShown(alice));
}

TEST_F(AgainBarTest, ClosingItGivesTheFocusToTheCommandPane) {
  ConnectAndEnd(bob);
  const int before = alice.fake.window.rtbCommands.timesFocused;
  BarOf(alice).fraAgain.hasFocus = true;
  alice.actions.cmdAgainClose_Click();
  EXPECT_FALSE(IsShown(alice));
  EXPECT_GT(alice.fake.window.rtbCommands.timesFocused, before);
  alice.actions.cmdAgain_Click();
  EXPECT_EQ(alice.State(), ConnectionState::Idle) << "nothing is offered any more";
}

TEST_F(AgainBarTest, FollowsTheLanguage) {
  ConnectAndEnd(bob);
  alice.state.IsGreek = true;
  Language language(alice.state, alice.fake.platform, alice.errors, alice.settings);
  language.ApplyLanguage();
  EXPECT_EQ(BarOf(alice).lblAgain.caption, u"Η σύνδεση με Bob έληξε.");
  EXPECT_EQ(BarOf(alice).cmdAgain.caption, u"Επανάληψη κλήσης");
  EXPECT_EQ(BarOf(alice).cmdAgainClose.caption, u"Κλείσιμο");
}

}  // namespace
}  // namespace verlume
