#include "commands/find_in_dialogue.h"

#include <gtest/gtest.h>

#include "platform_fake/fake_platform.h"

namespace verlume {
namespace {

class FindTest : public testing::Test {
 protected:
  FindTest() {
    window.txtFind.onChange = [this] { find.txtFind_Change(); };
    pane.SetText(u"<Ann>one cat\n<Bob>two Cats\n<Ann>no dog\n<Bob>the CAT");
    pane.Select(pane.TextLength(), 0);
  }

  // The text selected in the pane.
  std::u16string Selected() const { return pane.Text().substr(pane.SelStart(), pane.SelLength()); }
  std::u16string Result() const { return window.lblFindResult.caption; }

  static constexpr std::size_t kFirst = 9;
  static constexpr std::size_t kSecond = 22;
  static constexpr std::size_t kThird = 48;

  fake::FakeNetwork network;
  fake::FakePlatform fake{network};
  fake::FakeMainWindow& window = fake.window;
  fake::FakeRichTextBox& pane = window.rtbData;
  AppState state;
  ErrorReport errors{state, fake.platform, [] {}, [] {}};
  FindInDialogue find{state, fake.platform, errors};
};

TEST_F(FindTest, EntryOpensTheBarWithTheFocusInItsField) {
  EXPECT_FALSE(window.fraFind.visible);
  find.mnuToolsFind_Click();
  EXPECT_TRUE(window.fraFind.visible);
  EXPECT_EQ(window.txtFind.timesFocused, 1);
  EXPECT_EQ(Result(), u"");
}

TEST_F(FindTest, TypingSearchesFromTheTop) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"ca");
  EXPECT_EQ(pane.SelStart(), kFirst);
  EXPECT_EQ(Selected(), u"ca");
  EXPECT_EQ(Result(), u"1 of 3");
}

TEST_F(FindTest, TypingGoesOnFromThePresentMatch) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  EXPECT_EQ(pane.SelStart(), kFirst);
  window.txtFind.Type(u"cats");
  EXPECT_EQ(pane.SelStart(), kSecond);
  EXPECT_EQ(Result(), u"1 of 1");
  window.txtFind.Type(u"cat");
  EXPECT_EQ(pane.SelStart(), kSecond);
  EXPECT_EQ(Result(), u"2 of 3");
}

TEST_F(FindTest, NextGoesRoundTheEndAndSaysSo) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), kSecond);
  EXPECT_EQ(Selected(), u"Cat");
  EXPECT_EQ(Result(), u"2 of 3");
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), kThird);
  EXPECT_EQ(Result(), u"3 of 3");
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), kFirst);
  EXPECT_EQ(Result(), u"1 of 3, from the top");
  find.cmdFindNext_Click();
  EXPECT_EQ(Result(), u"2 of 3");
}

TEST_F(FindTest, PreviousGoesRoundTheTopAndSaysSo) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindPrevious_Click();
  EXPECT_EQ(pane.SelStart(), kThird);
  EXPECT_EQ(Result(), u"3 of 3, from the end");
  find.cmdFindPrevious_Click();
  EXPECT_EQ(pane.SelStart(), kSecond);
  EXPECT_EQ(Result(), u"2 of 3");
}

TEST_F(FindTest, SpeaksGreek) {
  state.IsGreek = true;
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  EXPECT_EQ(Result(), u"1 από 3");
  find.cmdFindPrevious_Click();
  EXPECT_EQ(Result(), u"3 από 3, από το τέλος");
  find.cmdFindNext_Click();
  EXPECT_EQ(Result(), u"1 από 3, από την αρχή");
  window.txtFind.Type(u"cow");
  EXPECT_EQ(Result(), u"Δεν βρέθηκε");
}

TEST_F(FindTest, WordsThatAreNotThereAreToldAndSelectNothing) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindNext_Click();
  window.txtFind.Type(u"catx");
  EXPECT_EQ(Result(), u"Not found");
  EXPECT_EQ(pane.SelLength(), 0u);
  find.cmdFindNext_Click();
  EXPECT_EQ(Result(), u"Not found");
  window.txtFind.Type(u"cat");
  EXPECT_EQ(pane.SelStart(), kSecond) << "the search goes on where it was";
}

TEST_F(FindTest, NoWordsShowNoResult) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  window.txtFind.Type(u"");
  EXPECT_EQ(Result(), u"");
  EXPECT_EQ(pane.SelLength(), 0u);
  find.cmdFindNext_Click();
  EXPECT_EQ(Result(), u"");
}

TEST_F(FindTest, LineThatArrivesLeavesTheMatchWhereItWas) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  pane.Select(pane.TextLength(), 0);
  pane.SetSelText(u"\n<Ann>one more cat");
  pane.Select(pane.TextLength(), 0);
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), kSecond);
  EXPECT_EQ(Result(), u"2 of 4");
}

TEST_F(FindTest, DialogueThatHasBeenEmptiedIsNotSearchedBehindItsEnd) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindPrevious_Click();
  pane.SetText(u"cat");
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), 0u);
  EXPECT_EQ(Result(), u"1 of 1, from the top");
  pane.SetText(u"");
  find.cmdFindNext_Click();
  EXPECT_EQ(Result(), u"Not found");
}

TEST_F(FindTest, MatchesDoNotOverlap) {
  pane.SetText(u"aaaaa");
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"aa");
  EXPECT_EQ(Result(), u"1 of 2");
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), 2u);
  EXPECT_EQ(Result(), u"2 of 2");
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), 0u);
}

TEST_F(FindTest, SearchBeginsAtTheCaretThatTheUserHasPut) {
  pane.Select(kFirst + 3, 0);
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  EXPECT_EQ(pane.SelStart(), kSecond);
  EXPECT_EQ(Result(), u"2 of 3");
}

TEST_F(FindTest, CloseHidesTheBarAndGivesTheFocusBack) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindClose_Click();
  EXPECT_FALSE(window.fraFind.visible);
  EXPECT_EQ(window.rtbCommands.timesFocused, 1);
}

TEST_F(FindTest, BarThatIsOpenedAgainSearchesForTheWordsOfLastTime) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindClose_Click();
  pane.Select(pane.TextLength(), 0);
  const int timesSelected = window.txtFind.timesSelected;
  find.mnuToolsFind_Click();
  EXPECT_EQ(Selected(), u"cat");
  EXPECT_EQ(Result(), u"1 of 3");
  EXPECT_EQ(window.txtFind.timesSelected, timesSelected + 1) << "ready to be typed over";
}

TEST_F(FindTest, EntryOfAnOpenBarGoesToItsFieldAndLeavesTheMatch) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindNext_Click();
  find.mnuToolsFind_Click();
  EXPECT_EQ(window.txtFind.timesFocused, 2);
  EXPECT_EQ(pane.SelStart(), kSecond);
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), kThird);
}

TEST_F(FindTest, ALongDialogueIsSearchedBetweenEvents) {
  pane.readsLater = true;
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  EXPECT_EQ(Result(), u"Searching\u2026");
  EXPECT_EQ(pane.SelLength(), 0U);
  pane.reader(0, pane.Text().substr(0, 10), false);
  EXPECT_EQ(Result(), u"Searching\u2026");
  pane.reader(10, pane.Text().substr(10), true);
  EXPECT_EQ(Result(), u"1 of 3");
  EXPECT_EQ(Selected(), u"cat");
}

TEST_F(FindTest, ASearchBeginsAnewWhenTheReadingDoes) {
  pane.readsLater = true;
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  pane.reader(0, u"cat cat ca", false);
  pane.reader(0, pane.Text(), true);
  EXPECT_EQ(Result(), u"1 of 3");
}

TEST_F(FindTest, AClosedBarFindsNothingMore) {
  pane.readsLater = true;
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindClose_Click();
  pane.reader(0, pane.Text(), true);
  EXPECT_EQ(pane.SelLength(), 0U);
}

TEST_F(FindTest, SaysThatMoreIsComing) {
  pane.moreIsComing = true;
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  EXPECT_EQ(Result(), u"1 of 3, more is coming");
  window.txtFind.Type(u"cow");
  EXPECT_EQ(Result(), u"Not found, more is coming");
  state.IsGreek = true;
  window.txtFind.Type(u"cats");
  EXPECT_EQ(Result(), u"1 από 1, έρχονται κι άλλα");
}

TEST_F(FindTest, TheMatchStaysTheSameWhenLinesLeave) {
  find.mnuToolsFind_Click();
  window.txtFind.Type(u"cat");
  find.cmdFindNext_Click();
  ASSERT_EQ(pane.SelStart(), kSecond);
  const std::size_t gone = pane.Text().find(u'\n') + 1;
  pane.SetText(pane.Text().substr(gone));
  find.rtbData_LinesRemoved(0, gone);
  find.cmdFindNext_Click();
  EXPECT_EQ(pane.SelStart(), kThird - gone);
  EXPECT_EQ(Result(), u"2 of 2");
}

}  // namespace
}  // namespace verlume
