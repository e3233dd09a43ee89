// The card on the empty dialogue pane in a whole program in memory.
#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

class ProgramWelcome : public testing::Test {
 protected:
  fake::FakeNetwork network;
  fake::ProgramCopy ann{network, u"Ann"};
  fake::FakeMainWindow& window = ann.platform.window;
  fake::FakeWelcomeCard& card = window.welcomeCard;
};

TEST_F(ProgramWelcome, StartsWithTheCardAndTheAddress) {
  EXPECT_TRUE(card.fraCard.visible);
  EXPECT_EQ(card.lblCardAddress.caption, u"Your address: 192.0.2.1");
}

TEST_F(ProgramWelcome, TheFirstLineHidesItAndClearingBringsItBack) {
  ann.Enter(u"hello");
  EXPECT_FALSE(card.fraCard.visible);
  window.mnuToolsClearDialogue.Click();
  EXPECT_TRUE(card.fraCard.visible);
}

TEST_F(ProgramWelcome, ItsButtonsChooseTheEntriesOfTheMenu) {
  card.cmdCardWait.Click();
  EXPECT_EQ(ann.Status().substr(0, 11), u"Local port:");
  ann.Enter(u"/CANCEL");
  ann.platform.dialogs.typed = {u"bob", u"4000"};
  card.cmdCardCall.Click();
  EXPECT_EQ(ann.Status(), u"Remote computer / port: bob / 4000. Calling...");
  const int shown = ann.platform.help.timesShown;
  card.cmdCardHelp.Click();
  EXPECT_EQ(ann.platform.help.timesShown, shown + 1);
}

TEST_F(ProgramWelcome, SpeaksTheLanguageThatIsChosen) {
  window.mnuToolsLanguageGreek.Click();
  EXPECT_EQ(card.lblCardAddress.caption, u"Η διεύθυνσή σας: 192.0.2.1");
  EXPECT_EQ(card.cmdCardWait.caption, u"Αναμονή για φίλο");
  EXPECT_EQ(card.fraCard.accessibleName, u"Πρώτα βήματα");
}

}  // namespace
}  // namespace verlume
