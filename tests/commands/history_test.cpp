#include "commands/history.h"

#include <gmock/gmock.h>

#include "platform_fake/fake_platform.h"

namespace verlume {
namespace {

class History : public testing::Test {
 protected:
  History() {
    state.Title = u"Verlume";
    state.History[0] = u"0";
    pane.onKeyDown = [this](int& code, int shift) { history.rtbCommands_KeyDown(code, shift); };
  }

  void Keep(std::u16string_view line) {
    pane.SetText(line);
    history.AddToHistory();
    pane.SetText(u"");
  }

  std::u16string PageUp() {
    pane.PressKey(key_code::kPageUp);
    return pane.Text();
  }
  std::u16string Up() {
    pane.PressKey(key_code::kUp);
    return pane.Text();
  }
  std::u16string Down() {
    pane.PressKey(key_code::kDown);
    return pane.Text();
  }
  std::u16string PageDown() {
    pane.PressKey(key_code::kPageDown);
    return pane.Text();
  }

  fake::FakeNetwork network;
  fake::FakePlatform fake{network};
  fake::FakeRichTextBox& pane = fake.window.rtbCommands;
  AppState state;
  int connectionsReset = 0;
  ErrorReport errors{state, fake.platform, [this] { ++connectionsReset; }, [] {}};
  CommandHistory history{state, fake.platform, errors};
};

TEST_F(History, CountsItsLinesInElementZero) {
  Keep(u"A");
  EXPECT_EQ(state.History[0], u"1");
  Keep(u"B");
  EXPECT_EQ(state.History[0], u"2");
  EXPECT_EQ(state.HistoryUp, 3);
  EXPECT_EQ(state.HistoryDown, 1);
}

TEST_F(History, PageUpWalksFromTheNewestToTheOldestAndWraps) {
  for (const auto line : {u"A", u"B", u"C"}) Keep(line);
  EXPECT_EQ(PageUp(), u"C");
  EXPECT_EQ(PageUp(), u"B");
  EXPECT_EQ(PageUp(), u"A");
  EXPECT_EQ(PageUp(), u"C");
}

TEST_F(History, PageDownShowsTheNewestThenWrapsToTheOldest) {
  for (const auto line : {u"A", u"B", u"C"}) Keep(line);
  EXPECT_EQ(PageDown(), u"C");
  EXPECT_EQ(PageDown(), u"A");
  EXPECT_EQ(PageDown(), u"B");
  EXPECT_EQ(PageDown(), u"C");
}

TEST_F(History, TheTwoWalksShareTheirPosition) {
  for (const auto line : {u"A", u"B", u"C"}) Keep(line);
  EXPECT_EQ(PageUp(), u"C");
  EXPECT_EQ(PageUp(), u"B");
  EXPECT_EQ(PageDown(), u"C");
  EXPECT_EQ(PageUp(), u"B");
}

TEST_F(History, ALineOnItsOwnIsShownAgainAndAgain) {
  Keep(u"A");
  EXPECT_EQ(PageDown(), u"A");
  EXPECT_EQ(PageDown(), u"A");
  EXPECT_EQ(PageUp(), u"A");
}

TEST_F(History, EveryLineIsKeptDuplicatesIncluded) {
  Keep(u"A");
  Keep(u"A");
  EXPECT_EQ(state.History[0], u"2");
}

TEST_F(History, TheFiftyFirstLineDropsTheFirst) {
  for (int line = 1; line <= 51; ++line) Keep(DecimalText(line));
  EXPECT_EQ(state.History[0], u"50");
  EXPECT_EQ(state.HistoryUp, 51);
  EXPECT_EQ(state.HistoryDown, 49);
  for (int line = 51; line >= 2; --line) EXPECT_EQ(PageUp(), DecimalText(line));
  EXPECT_EQ(PageUp(), u"51");
}

TEST_F(History, ARecalledLineKeepsItsFormat) {
  SelectionFormat format;
  format.fontSize = 11;
  format.bold = true;
  pane.SetSelFormat(format);
  pane.SetSelText(u"bold");
  history.AddToHistory();
  pane.SetText(u"");
  format.fontSize = 8;
  format.bold = false;
  pane.SetSelFormat(format);
  PageUp();
  pane.Select(0, 4);
  EXPECT_EQ(pane.SelFormat().bold, true);
  EXPECT_EQ(pane.SelFormat().fontSize, 11);
}

TEST_F(History, ARecalledLineReplacesWhatWasTypedAndPutsTheCaretAtItsEnd) {
  Keep(u"line");
  pane.SetText(u"something else");
  EXPECT_EQ(PageUp(), u"line");
  EXPECT_EQ(pane.SelStart(), 4u);
  EXPECT_EQ(pane.SelLength(), 0u);
}

TEST_F(History, AnEmptyHistoryLeavesThePaneAndSwallowsTheKeys) {
  pane.SetText(u"typed");
  EXPECT_FALSE(pane.PressKey(key_code::kPageUp));
  EXPECT_FALSE(pane.PressKey(key_code::kPageDown));
  EXPECT_EQ(pane.Text(), u"typed");
  EXPECT_EQ(state.HistoryUp, 1);
  EXPECT_EQ(state.HistoryDown, -1);
}

TEST_F(History, UpAndDownWalkAsPageUpAndPageDownDo) {
  for (const auto line : {u"A", u"B", u"C"}) Keep(line);
  EXPECT_EQ(Up(), u"C");
  EXPECT_EQ(Up(), u"B");
  EXPECT_EQ(PageUp(), u"A");
  EXPECT_EQ(Up(), u"C");
  EXPECT_EQ(Down(), u"A");
  EXPECT_EQ(PageDown(), u"B");
}

TEST_F(History, UpAndDownAreSwallowedByAnEmptyHistory) {
  pane.SetText(u"typed");
  EXPECT_FALSE(pane.PressKey(key_code::kUp));
  EXPECT_FALSE(pane.PressKey(key_code::kDown));
  EXPECT_EQ(pane.Text(), u"typed");
}

TEST_F(History, UpAndDownMoveTheCaretInALineThatIsShownAsSeveral) {
  Keep(u"A");
  pane.lineWidth = 10;
  pane.SetText(u"a line as long as three");
  for (const std::size_t caret : {0u, 15u, 23u}) {
    pane.Select(caret, 0);
    EXPECT_EQ(pane.PressKey(key_code::kUp), caret != 0) << caret;
    EXPECT_EQ(pane.Text(), caret == 0 ? u"A" : u"a line as long as three");
    pane.SetText(u"a line as long as three");
    pane.Select(caret, 0);
    EXPECT_EQ(pane.PressKey(key_code::kDown), caret != 23) << caret;
    EXPECT_EQ(pane.Text(), caret == 23 ? u"A" : u"a line as long as three");
    pane.SetText(u"a line as long as three");
  }
}

TEST_F(History, TellsWhileItShowsALine) {
  Keep(u"A");
  std::vector<bool> told;
  pane.onChange = [&] { told.push_back(history.IsShowingLine()); };
  PageUp();
  pane.SetText(u"typed");
  EXPECT_EQ(told, (std::vector<bool>{true, false}));
}

TEST_F(History, TabDoesNothing) {
  pane.SetText(u"typed");
  EXPECT_FALSE(pane.PressKey(key_code::kTab));
  EXPECT_EQ(pane.Text(), u"typed");
}

TEST_F(History, EscapeEmptiesTheCommandPane) {
  pane.SetText(u"typed");
  EXPECT_FALSE(pane.PressKey(key_code::kEscape));
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(History, KeysWithAModifierAreLeftToThePane) {
  Keep(u"A");
  pane.SetText(u"typed");
  for (const int shift : {1, 2, 4, 3, 7}) {
    for (const int key : {key_code::kTab, key_code::kEscape, key_code::kPageUp, key_code::kPageDown,
                          key_code::kUp, key_code::kDown}) {
      EXPECT_TRUE(pane.PressKey(key, shift)) << key << " with " << shift;
    }
  }
  EXPECT_EQ(pane.Text(), u"typed");
}

TEST_F(History, OtherKeysAreLeftToThePane) {
  for (const int key : {8, 13, 37, 46, 65}) EXPECT_TRUE(pane.PressKey(key)) << key;
}

TEST_F(History, ClearingForgetsEveryLine) {
  for (const auto line : {u"A", u"B", u"C"}) Keep(line);
  const int timesFocused = pane.timesFocused;
  history.mnuToolsClearHistory_Click();
  EXPECT_EQ(state.History[0], u"0");
  for (std::size_t i = 1; i <= 50; ++i) EXPECT_EQ(state.History[i], u"");
  EXPECT_EQ(state.HistoryUp, 1);
  EXPECT_EQ(state.HistoryDown, -1);
  EXPECT_EQ(PageUp(), u"");
  EXPECT_GT(pane.timesFocused, timesFocused);
}

TEST_F(History, ClearingTheCommandsEmptiesThePaneAndFocusesIt) {
  pane.SetText(u"typed");
  history.mnuToolsClearCommands_Click();
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(History, AnIndexBeyondTheStoreIsReported) {
  state.History[0] = u"60";
  state.HistoryUp = 52;
  fake.dialogs.answers = {Answer::No};
  EXPECT_FALSE(pane.PressKey(key_code::kPageUp));
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 236.");
  EXPECT_EQ(connectionsReset, 1);
}

TEST_F(History, ACountThatIsNoNumberIsReported) {
  state.History[0] = u"many";
  fake.dialogs.answers = {Answer::No};
  PageDown();
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 236.");
  EXPECT_NE(fake.dialogs.messages[0].text.find(u"'Type mismatch'"), std::u16string::npos);
}

}  // namespace
}  // namespace verlume
