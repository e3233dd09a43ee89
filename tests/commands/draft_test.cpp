// What is half typed in the command pane stays there when an entry of a menu is chosen meanwhile.
#include "shell/draft.h"

#include <gmock/gmock.h>

#include "commands/interpreter_fixture.h"

namespace verlume {
namespace {

using testing::SizeIs;

class DraftTest : public fake::InterpreterSide {
 protected:
  // Types "half bold" with the second word in bold, and puts the insertion point in that word.
  void TypeDraft() {
    pane.Type(u"half ");
    textFormat.mnuFormatFontBold_Click();
    pane.Type(u"bold");
    pane.Select(7, 0);
    draft_ = pane.Rtf();
    ForgetChanges();
  }
  void ForgetChanges() {
    selChanges_ = 0;
    pane.onSelChange = [this] {
      ++selChanges_;
      textFormat.rtbCommands_SelChange();
    };
  }
  void ExpectDraft() {
    EXPECT_EQ(pane.Text(), u"half bold");
    EXPECT_EQ(pane.Rtf(), draft_);
    EXPECT_EQ(pane.SelStart(), 7u);
    EXPECT_EQ(pane.SelLength(), 0u);
    EXPECT_TRUE(pane.HasFocus());
  }

  std::u16string draft_;
  int selChanges_ = 0;
};

TEST_F(DraftTest, WaitCallCloseRefreshAndNicknameFromAMenuKeepIt) {
  TypeDraft();
  connection.mnuCommWait_Click();
  EXPECT_TRUE(state.IsWaiting);
  ExpectDraft();

  fake.dialogs.answers = {Answer::Yes};
  fake.dialogs.typed = {u"host", u"2000"};
  connection.mnuCommCall_Click();
  EXPECT_TRUE(state.IsCalling);
  ExpectDraft();

  fake.dialogs.answers = {Answer::Yes};
  fake.socket.localIP = u"198.51.100.7";
  connection.mnuCommRefresh_Click();
  EXPECT_EQ(state.LocalAddress, u"198.51.100.7");
  ExpectDraft();

  Connect();
  connection.mnuCommClose_Click();
  EXPECT_FALSE(state.IsConnected);
  ExpectDraft();

  fake.dialogs.typed = {u"Rob"};
  connection.mnuToolsNick_Click();
  EXPECT_EQ(state.Nickname, u"Rob");
  ExpectDraft();
}

TEST_F(DraftTest, WhatIsTypedNextHasTheStyleThatWasInForce) {
  TypeDraft();
  textFormat.mnuFormatFontItalics_Click();  // at the end of the line
  const TextStyle style = state.Font;
  connection.mnuCommWait_Click();
  EXPECT_EQ(state.Font, style);
  pane.Type(u"!");
  pane.Select(9, 1);
  EXPECT_EQ(pane.SelFormat().italic, true);
  EXPECT_EQ(pane.SelFormat().bold, true);
  EXPECT_EQ(pane.Text(), u"half bold!");
}

TEST_F(DraftTest, ASelectionIsKept) {
  TypeDraft();
  pane.Select(2, 5);
  connection.mnuCommWait_Click();
  EXPECT_EQ(pane.SelStart(), 2u);
  EXPECT_EQ(pane.SelLength(), 5u);
}

TEST_F(DraftTest, PuttingItBackIsOneChange) {
  TypeDraft();
  const Draft draft(fake.platform);
  pane.SetText(u"");
  ForgetChanges();
  EXPECT_TRUE(draft.Restore(state.Font));
  EXPECT_EQ(selChanges_, 1);
}

TEST_F(DraftTest, ARefusedEntryTouchesNothing) {
  TypeDraft();
  connection.mnuCommClose_Click();
  EXPECT_THAT(fake.dialogs.messages, SizeIs(1));
  ExpectDraft();
  EXPECT_EQ(selChanges_, 0);
}

TEST_F(DraftTest, FontSizeFromTheMenuKeepsItAndTakesTheSizeForWhatFollows) {
  TypeDraft();
  fake.dialogs.typed = {u"8,5"};
  textFormat.mnuFormatFontSize_Click();
  EXPECT_EQ(state.Font.Size, 8.5);
  ExpectDraft();
  EXPECT_EQ(pane.SelFormat().fontSize, 8.5);
  EXPECT_EQ(pane.SelFormat().bold, true);
  EXPECT_EQ(settings.ReadSetting(u"FontLocal", u"Size", u"missing", 100), u"8.5");
}

TEST_F(DraftTest, FontSizeFromTheMenuIsForWhatFollowsASelectionToo) {
  TypeDraft();
  pane.Select(5, 4);
  fake.dialogs.typed = {u"8"};
  textFormat.mnuFormatFontSize_Click();
  EXPECT_EQ(pane.Rtf(), draft_);
  EXPECT_EQ(pane.SelLength(), 0u);
  EXPECT_EQ(pane.SelFormat().fontSize, 8);
}

TEST_F(DraftTest, CancelFromTheMenuAndARefusedExitEmptyThePane) {
  TypeDraft();
  connection.mnuCommCancel_Click();
  EXPECT_EQ(pane.Text(), u"");
  Enter(u"/wait");
  TypeDraft();
  fake.dialogs.answers = {Answer::No};
  connection.ConfirmExit();
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(DraftTest, ATypedCommandThatChoosesAMenuEntryLeavesThePaneEmpty) {
  window.mnuHelpAbout.onClick = [this] { connection.mnuCommWait_Click(); };
  Enter(u"/helpabout");
  EXPECT_TRUE(state.IsWaiting);
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(DraftTest, WhatCameIntoThePaneMeanwhileStays) {
  TypeDraft();
  const Draft draft(fake.platform);
  pane.SetText(u"another line");
  EXPECT_FALSE(draft.Restore(state.Font));
  EXPECT_EQ(pane.Text(), u"another line");
}

TEST_F(DraftTest, NothingIsPutBackWhenTheProgramHasEnded) {
  TypeDraft();
  const Draft draft(fake.platform);
  pane.SetText(u"");
  fake.application.End();
  EXPECT_FALSE(draft.Restore(state.Font));
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(DraftTest, APaneThatCannotBeReadIsReported) {
  TypeDraft();
  pane.rtfFails = FailureNumber::InvalidProcedureCall;
  fake.dialogs.answers = {Answer::No, Answer::No};
  connection.mnuCommWait_Click();
  EXPECT_EQ(fake.dialogs.messages.back().title, u"Verlume, 205.");
  textFormat.mnuFormatFontSize_Click();
  EXPECT_EQ(fake.dialogs.messages.back().title, u"Verlume, 235.");
}

}  // namespace
}  // namespace verlume
