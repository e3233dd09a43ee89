// The keys and clicks that choose a row of the list.
#include "commands/completion.h"
#include "commands/completion_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class CompletionWalk : public fake::CompletionSide {
 protected:
  // Three rows: /WAIT, /walk, /wave.
  CompletionWalk() {
    MakeMacro(u"wave");
    MakeMacro(u"walk");
    pane.Type(u"/wa");
    window.lstCompletions.top = -1;
  }
  std::u16string Down() { return Press(key_code::kDown); }
  std::u16string Up() { return Press(key_code::kUp); }
};

TEST_F(CompletionWalk, DownPutsRowAfterRowIntoThePane) {
  EXPECT_EQ(Down(), u"/WAIT");
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(Down(), u"/walk");
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
  EXPECT_EQ(pane.SelLength(), 0u);
}

TEST_F(CompletionWalk, UpFromTheFirstRowGivesBackWhatWasTyped) {
  Down();
  EXPECT_EQ(Up(), u"/wa");
  EXPECT_EQ(Selected(), -1);
  EXPECT_EQ(window.lstCompletions.top, 0);
  EXPECT_TRUE(IsOpen());
}

TEST_F(CompletionWalk, GoesRoundAtBothEnds) {
  EXPECT_EQ(Up(), u"/wave");
  EXPECT_EQ(Down(), u"/wa");
  EXPECT_EQ(Down(), u"/WAIT");
}

TEST_F(CompletionWalk, TheListGoesOnMatchingWhatWasTyped) {
  Down();
  EXPECT_TRUE(IsOpen());
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT", u"/walk", u"/wave"));
}

TEST_F(CompletionWalk, WhatIsTypedNextIsMatchedAgain) {
  Up();
  pane.SetText(u"/w");
  EXPECT_EQ(Selected(), -1);
  EXPECT_EQ(Rows().size(), 3u);
  Down();
  EXPECT_EQ(Up(), u"/w");
  Down();
  pane.Type(u" 4000");
  EXPECT_EQ(pane.Text(), u"/WAIT 4000");
  EXPECT_FALSE(IsOpen());
}

TEST_F(CompletionWalk, EnterRunsTheWordAsIfItWereTyped) {
  Down();
  pane.Type(u"\r");
  EXPECT_TRUE(state.IsWaiting);
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(state.History[0], u"1");
}

TEST_F(CompletionWalk, EnterRunsAMacroOfSeveralWords) {
  MakeMacro(u"good day", "{\\rtf1 Good day to all}");
  pane.SetText(u"");
  pane.Type(u"/go");
  EXPECT_EQ(Down(), u"/good day");
  EXPECT_TRUE(IsOpen());
  pane.Type(u"\r");
  EXPECT_EQ(window.rtbData.Text(), u"<Bob>Good day to all");
}

TEST_F(CompletionWalk, EnterWithoutAWalkRunsWhatWasTyped) {
  pane.Type(u"\r");
  EXPECT_EQ(window.rtbData.Text(), u"<Bob>/wa");
  EXPECT_FALSE(state.IsWaiting);
}

TEST_F(CompletionWalk, RightTakesTheFirstRowAndRunsNothing) {
  EXPECT_EQ(Press(key_code::kRight), u"/WAIT");
  EXPECT_EQ(pane.SelStart(), 5u);
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(state.IsWaiting);
  EXPECT_TRUE(pane.PressKey(key_code::kRight));
}

TEST_F(CompletionWalk, RightTakesTheSelectedRow) {
  Down();
  Down();
  EXPECT_EQ(Press(key_code::kRight), u"/walk");
  EXPECT_FALSE(IsOpen());
}

TEST_F(CompletionWalk, RightWithinTheWordIsThePanesOwn) {
  pane.Select(1, 0);
  EXPECT_TRUE(pane.PressKey(key_code::kRight));
  pane.Select(0, 3);
  EXPECT_TRUE(pane.PressKey(key_code::kRight));
  EXPECT_EQ(pane.Text(), u"/wa");
  EXPECT_TRUE(IsOpen());
}

TEST_F(CompletionWalk, TheWordTakesTheStyleInForce) {
  window.chkBold.SetValue(1);
  Down();
  EXPECT_TRUE(state.Font.Bold);
  EXPECT_EQ(window.chkBold.value, 1);
  EXPECT_EQ(pane.SelFormat().bold, true);
  pane.Select(0, pane.TextLength());
  EXPECT_EQ(pane.SelFormat().bold, true);
}

TEST_F(CompletionWalk, LeavesTheSettingsOfTheStyleAlone) {
  fake.files.files.erase(u"/verlume/Verlume.ini");
  Down();
  Up();
  EXPECT_FALSE(fake.files.IsFile(u"/verlume/Verlume.ini"));
}

TEST_F(CompletionWalk, KeysAreThePanesOwnWhileTheListIsClosed) {
  pane.SetText(u"hello");
  for (const int key : {key_code::kDown, key_code::kUp, key_code::kRight}) {
    int code = key;
    completion.rtbCommands_KeyDown(code, 0);
    EXPECT_EQ(code, key);
  }
  EXPECT_EQ(pane.Text(), u"hello");
}

TEST_F(CompletionWalk, KeysWithAModifierAreThePanesOwn) {
  for (const int shift : {1, 2, 4}) {
    EXPECT_TRUE(pane.PressKey(key_code::kDown, shift));
    EXPECT_TRUE(pane.PressKey(key_code::kRight, shift));
  }
  EXPECT_EQ(pane.Text(), u"/wa");
  EXPECT_EQ(Selected(), -1);
}

TEST_F(CompletionWalk, NoOtherKeyIsTakenByTheList) {
  for (const int key : {key_code::kTab, key_code::kEscape, key_code::kPageUp, key_code::kPageDown,
                        key_code::kOther}) {
    int code = key;
    completion.rtbCommands_KeyDown(code, 0);
    EXPECT_EQ(code, key);
  }
  EXPECT_EQ(pane.Text(), u"/wa");
}

TEST_F(CompletionWalk, AClickPutsTheRowIntoThePaneAndClosesTheList) {
  const int before = pane.timesFocused;
  window.lstCompletions.Choose(2);
  EXPECT_EQ(pane.Text(), u"/wave");
  EXPECT_EQ(pane.SelStart(), 5u);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(pane.timesFocused, before + 1);
  pane.Type(u"\r");
  EXPECT_EQ(window.rtbData.Text(), u"<Bob>waves");
}

TEST_F(CompletionWalk, AClickBesideTheRowsLeavesThePaneAsItIs) {
  window.lstCompletions.Choose(-1);
  EXPECT_EQ(pane.Text(), u"/wa");
  EXPECT_TRUE(IsOpen());
}

}  // namespace
}  // namespace verlume
