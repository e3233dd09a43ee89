#include "commands/dialogue/new_lines.h"

#include "commands/dialogue/dialogue.h"
#include "macros/room_test.h"
#include "shell/lines_below.h"

namespace verlume {
namespace {

class NewLinesTest : public RoomTest {
 protected:
  NewLinesTest() {
    state.Nickname = u"Bob";
    state.RemoteNickname = u"Ann";
    state.DateStamp = state.TimeStamp = false;
    commands.SetFocus();
  }

  void Arrives(std::u16string_view text) { Write(Sender::Remote, text); }
  void Says(std::u16string_view text) { Write(Sender::Local, text); }
  void Write(Sender sender, std::u16string_view text) {
    dialogue.WriteDialogueLine(u"{\\rtf1 " + std::u16string(text) + u"}", sender,
                               CommandPane::Keep);
  }
  // What the user does to the pane.
  void ScrollUp() { pane.showsEnd = false; }
  void ScrollToTheEnd() {
    pane.showsEnd = true;
    newLines.rtbData_EndShown();
  }
  bool IsShown() const { return fake.window.fraNewLines.visible; }
  std::u16string Caption() const { return fake.window.cmdNewLines.caption; }

  DialogueLog log{state, fake.platform, errors, settings};
  Dialogue dialogue{state, fake.platform, errors, settings, log};
  NewLines& newLines = dialogue.WhatIsNew();
  fake::FakeRichTextBox& pane = fake.window.rtbData;
  fake::FakeRichTextBox& commands = fake.window.rtbCommands;
};

TEST_F(NewLinesTest, ThePaneFollowsWhatArrives) {
  Arrives(u"one");
  Arrives(u"two");
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
  EXPECT_TRUE(pane.showsEnd);
  EXPECT_FALSE(IsShown());
}

TEST_F(NewLinesTest, WhoHasScrolledUpKeepsThePlace) {
  Arrives(u"one");
  ScrollUp();
  Arrives(u"two");
  EXPECT_FALSE(pane.showsEnd);
  EXPECT_TRUE(IsShown());
  EXPECT_EQ(Caption(), u"1 new line");
  Arrives(u"three");
  EXPECT_EQ(Caption(), u"2 new lines");
  EXPECT_EQ(pane.Text(), u"<Ann>one\n<Ann>two\n<Ann>three");
  EXPECT_TRUE(commands.HasFocus());
}

TEST_F(NewLinesTest, ASelectionStays) {
  Arrives(u"one");
  pane.Select(5, 3);
  Arrives(u"two");
  EXPECT_EQ(pane.SelStart(), 5u);
  EXPECT_EQ(pane.SelLength(), 3u);
}

TEST_F(NewLinesTest, WhoIsAboutToSelectKeepsThePlace) {
  Arrives(u"one");
  pane.Select(2, 0);
  pane.isPressed = true;
  Arrives(u"two");
  EXPECT_EQ(pane.SelStart(), 2u);
}

TEST_F(NewLinesTest, WhatTheUserSaysIsShown) {
  Arrives(u"one");
  ScrollUp();
  Arrives(u"two");
  Says(u"three");
  EXPECT_TRUE(pane.showsEnd);
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
  EXPECT_FALSE(IsShown());
  pane.Select(0, 3);
  Write(Sender::LocalAction, u"Bob waves");
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
}

TEST_F(NewLinesTest, ACommandMovesNothingWhileTheUserReads) {
  Arrives(u"one");
  pane.Select(2, 3);
  dialogue.ClearCommandPane();
  EXPECT_EQ(pane.SelLength(), 3u);
  pane.Select(2, 0);
  pane.showsEnd = true;
  dialogue.ClearCommandPane();
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
}

TEST_F(NewLinesTest, TheNoteThatThePaneIsNearlyFullMovesNothingEither) {
  Arrives(u"one");
  pane.Select(2, 3);
  dialogue.rtbData_NearlyFull();
  EXPECT_EQ(pane.SelStart(), 2u);
  EXPECT_EQ(pane.SelLength(), 3u);
}

TEST_F(NewLinesTest, TheButtonLeadsDown) {
  Arrives(u"one");
  ScrollUp();
  Arrives(u"two");
  fake::Focus::GiveTo(&fake.window.fraNewLines);
  newLines.cmdNewLines_Click();
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(commands.HasFocus());
}

TEST_F(NewLinesTest, CtrlEndInTheCommandPaneLeadsDownToo) {
  Arrives(u"one");
  pane.Select(0, 0);
  ScrollUp();
  Arrives(u"two");
  newLines.rtbCommands_KeyDown(key_code::kEnd, 0);
  EXPECT_TRUE(IsShown());
  newLines.rtbCommands_KeyDown(key_code::kEnd, 2);
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
}

TEST_F(NewLinesTest, TheButtonGoesWhenTheEndIsShown) {
  Arrives(u"one");
  ScrollUp();
  Arrives(u"two");
  ScrollToTheEnd();
  EXPECT_FALSE(IsShown());
  ScrollUp();
  Arrives(u"three");
  EXPECT_EQ(Caption(), u"1 new line");
}

TEST_F(NewLinesTest, LinesThatAreInViewAreNotCounted) {
  Arrives(u"one");
  pane.Select(0, 3);
  pane.showsEnd = true;
  Arrives(u"two");
  EXPECT_FALSE(IsShown());
}

TEST_F(NewLinesTest, ItFollowsTheLanguage) {
  Arrives(u"one");
  ScrollUp();
  Arrives(u"two");
  state.IsGreek = true;
  ShowLinesBelow(state, fake.window.frmMain);
  EXPECT_EQ(Caption(), u"1 νέα γραμμή");
  Arrives(u"three");
  EXPECT_EQ(Caption(), u"2 νέες γραμμές");
}

TEST_F(NewLinesTest, ALineMarksWhereTheUnreadBegins) {
  Arrives(u"one");
  EXPECT_FALSE(pane.unreadFrom);
  fake.window.window.active = false;
  Arrives(u"two");
  EXPECT_EQ(pane.unreadFrom, 9u);
  Arrives(u"three");
  EXPECT_EQ(pane.unreadFrom, 9u);
  EXPECT_EQ(pane.unreadWords(), u"You have not read this yet.");
  state.IsGreek = true;
  EXPECT_EQ(pane.unreadWords(), u"Δεν το έχετε διαβάσει ακόμη.");
}

TEST_F(NewLinesTest, ItStandsWhereTheLastAbsenceBegan) {
  fake.window.window.active = false;
  Arrives(u"one");
  fake.window.window.active = true;
  newLines.window_Activated();
  Arrives(u"two");
  EXPECT_EQ(pane.unreadFrom, 0u) << "it stays until the user reads on";
  fake.window.window.active = false;
  Arrives(u"three");
  EXPECT_EQ(pane.unreadFrom, 18u);
}

TEST_F(NewLinesTest, ItGoesWhenTheUserReadsOn) {
  fake.window.window.active = false;
  Arrives(u"one");
  newLines.window_Activated();
  ScrollUp();
  newLines.rtbCommands_KeyDown(key_code::kOther, 0);
  EXPECT_TRUE(pane.unreadFrom) << "the end is not in view";
  ScrollToTheEnd();
  newLines.rtbCommands_KeyDown(key_code::kOther, 0);
  EXPECT_FALSE(pane.unreadFrom);
}

TEST_F(NewLinesTest, ItGoesWhenTheUserSaysSomething) {
  fake.window.window.active = false;
  Arrives(u"one");
  Says(u"two");
  EXPECT_FALSE(pane.unreadFrom);
}

}  // namespace
}  // namespace verlume
