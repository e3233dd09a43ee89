// The card on the empty dialogue pane, through waits, calls and conversations.
#include "shell/welcome_card.h"

#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class WelcomeCardTest : public testing::Test, protected fake::TwoSides {
 protected:
  WelcomeCardTest() {
    for (fake::Side* side : {&alice, &bob}) {
      side->state.LocalAddress = side->fake.socket.LocalIP();
      side->fake.window.rtbData.onChange = [side] {
        ShowWelcomeCard(side->state, side->fake.platform);
      };
      ShowWelcomeCard(side->state, side->fake.platform);
    }
  }
  static const fake::FakeWelcomeCard& CardOf(const fake::Side& side) {
    return side.fake.window.welcomeCard;
  }
  bool IsShown() const { return card.fraCard.visible; }

  fake::FakeWelcomeCard& card = alice.fake.window.welcomeCard;
};

TEST_F(WelcomeCardTest, AnIdleProgramSaysWhatItIsAndWhereItIs) {
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(card.lblCard.caption.starts_with(u"Verlume lets two computers talk"));
  EXPECT_EQ(card.lblCardAddress.caption, u"Your address: 192.0.2.1");
  EXPECT_EQ(card.cmdCardCopy.textToCopy, u"192.0.2.1");
}

TEST_F(WelcomeCardTest, AWaitShowsItsPort) {
  alice.Wait(u"4000");
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(card.lblCard.caption.starts_with(u"You are waiting for a call on port 4000."));
  EXPECT_EQ(card.lblCardAddress.caption, u"Your address: 192.0.2.1, port 4000");
  EXPECT_EQ(card.cmdCardCopy.textToCopy, u"192.0.2.1:4000");
  alice.actions.CancelWaitOrCall();
  EXPECT_EQ(card.cmdCardCopy.textToCopy, u"192.0.2.1");
}

TEST_F(WelcomeCardTest, AnIPv6AddressIsCopiedInBracketsBeforeItsPort) {
  alice.state.LocalAddress = u"fd77::1";
  alice.Wait(u"4000");
  EXPECT_EQ(card.cmdCardCopy.textToCopy, u"[fd77::1]:4000");
}

TEST_F(WelcomeCardTest, ACallHidesItAndItsFailureIsOnTheCard) {
  alice.Call(u"bob 4000");
  EXPECT_FALSE(IsShown());
  network.RunUntilIdle();
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(card.lblCard.caption.starts_with(u"The computer bob refused the call"));
  alice.Wait(u"4001");
  alice.actions.CancelWaitOrCall();
  EXPECT_TRUE(card.lblCard.caption.starts_with(u"Verlume lets two computers talk"));
}

TEST_F(WelcomeCardTest, AnAcceptedCallerHidesItBeforeTheConversation) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.fake.socket.onDataArrival = nullptr;
  alice.Call(u"bob 4000");
  network.RunUntilIdle();
  ASSERT_EQ(bob.State(), ConnectionState::Waiting);
  EXPECT_FALSE(CardOf(bob).fraCard.visible);
}

TEST_F(WelcomeCardTest, AConversationHidesItUntilItEnds) {
  Connect();
  EXPECT_FALSE(IsShown());
  EXPECT_FALSE(CardOf(bob).fraCard.visible);
  alice.actions.CloseConnection();
  network.RunUntilIdle();
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(CardOf(bob).fraCard.visible);
}

TEST_F(WelcomeCardTest, TheFirstLineHidesItUntilTheDialogueIsCleared) {
  alice.dialogue.WriteDialogueLine(u"{\\rtf1 hello}", Sender::Local, CommandPane::Keep);
  EXPECT_FALSE(IsShown());
  alice.Wait(u"4000");
  EXPECT_FALSE(IsShown());
  alice.actions.CancelWaitOrCall();
  EXPECT_FALSE(IsShown());
  alice.dialogue.mnuToolsClearDialogue_Click();
  EXPECT_TRUE(IsShown());
}

TEST_F(WelcomeCardTest, ANewAddressIsShownAtOnce) {
  alice.fake.socket.localIP = u"192.0.2.9";
  alice.actions.RefreshLocalIP();
  EXPECT_EQ(card.lblCardAddress.caption, u"Your address: 192.0.2.9");
  EXPECT_EQ(card.cmdCardCopy.textToCopy, u"192.0.2.9");
}

TEST_F(WelcomeCardTest, ItTakesTheFocusWithItOnlyToTheCommandPane) {
  fake::FakeRichTextBox& pane = alice.fake.window.rtbCommands;
  const auto writeAndClear = [this] {
    alice.fake.window.rtbData.SetText(u"hello");
    alice.fake.window.rtbData.SetText(u"");
  };
  pane.timesFocused = 0;
  writeAndClear();
  EXPECT_EQ(pane.timesFocused, 0);
  card.fraCard.hasFocus = true;
  writeAndClear();
  EXPECT_EQ(pane.timesFocused, 1);
}

}  // namespace
}  // namespace verlume
