#include "commands/dialogue/dialogue.h"

#include "macros/room_test.h"
#include "richtext/rtf_writer.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DialogueTest : public RoomTest {
 protected:
  DialogueTest() {
    state.Nickname = u"Bob";
    state.RemoteNickname = u"Νίκος";
    state.DateStamp = state.TimeStamp = false;
    fake.files.MakeFolder(u"/logs");
    state.LogFolder = u"/logs/";
    state.LogFileStem = u"peer";
    state.LogDialogue = state.LogOpen = true;
  }

  // A message as a command pane makes it: 12 points, bold, red.
  static std::u16string Message(std::u16string_view text) {
    return u"{\\rtf1\\ansi\\ansicpg1253\\deff0{\\fonttbl{\\f0\\fnil\\fcharset161 Courier New;}}"
           u"{\\colortbl ;\\red255\\green0\\blue0;}\\viewkind4\\uc1\\pard\\cf1\\b\\f0\\fs24 " +
           richtext::EscapeForRtf(text) + u"}";
  }
  void Write(std::u16string_view text, CommandPane commandPane = CommandPane::Keep) {
    WriteAs(Sender::Local, text, commandPane);
  }
  void WriteAs(Sender sender, std::u16string_view text,
               CommandPane commandPane = CommandPane::Keep) {
    dialogue.WriteDialogueLine(text.empty() ? u"" : Message(text), sender, commandPane);
  }
  SelectionFormat FormatAt(std::size_t start, std::size_t length) {
    pane.Select(start, length);
    return pane.SelFormat();
  }
  static void ExpectPlainBlackArial(const SelectionFormat& format, double size) {
    EXPECT_EQ(format.fontName, u"Arial");
    EXPECT_EQ(format.fontSize, size);
    EXPECT_EQ(format.color, 0);
    EXPECT_EQ(format.bold, false);
    EXPECT_EQ(format.italic, false);
    EXPECT_EQ(format.underline, false);
    EXPECT_EQ(format.strikethrough, false);
  }
  std::string Log() const {
    const auto file = fake.files.files.find(u"/logs/peer.txt");
    return file == fake.files.files.end() ? "" : file->second;
  }

  DialogueLog log{state, fake.platform, errors, settings};
  Dialogue dialogue{state, fake.platform, errors, settings, log};
  fake::FakeRichTextBox& pane = fake.window.rtbData;
  fake::FakeRichTextBox& commands = fake.window.rtbCommands;
};

TEST_F(DialogueTest, FirstLineHasNoLineBreakBeforeIt) {
  Write(u"hello");
  EXPECT_EQ(pane.Text(), u"<Bob>hello");
}

TEST_F(DialogueTest, LineBreakSeparatesLines) {
  Write(u"one");
  Write(u"two");
  EXPECT_EQ(pane.Text(), u"<Bob>one\n<Bob>two");
}

TEST_F(DialogueTest, StampFollowsTheSwitches) {
  state.DateStamp = true;
  Write(u"a");
  state.TimeStamp = true;
  Write(u"b");
  state.DateStamp = false;
  Write(u"c");
  EXPECT_EQ(pane.Text(), u"[2026-03-07]<Bob>a\n[2026-03-07_09:05:30]<Bob>b\n[09:05:30]<Bob>c");
}

TEST_F(DialogueTest, LogHasDateAndTimeWhateverTheSwitchesSay) {
  Write(u"hello");
  EXPECT_EQ(Log(), "[2026-03-07_09:05:30]<Bob>hello\r\n");
}

TEST_F(DialogueTest, RemoteLineHasTheRemoteNicknameAndTheNextLocalLineTheLocalOne) {
  state.ForeignText = true;
  WriteAs(Sender::Remote, u"γεια");
  EXPECT_FALSE(state.ForeignText);
  Write(u"hello");
  EXPECT_EQ(pane.Text(), u"<Νίκος>γεια\n<Bob>hello");
  EXPECT_EQ(Log(),
            "[2026-03-07_09:05:30]<Νίκος>γεια\r\n"
            "[2026-03-07_09:05:30]<Bob>hello\r\n");
}

TEST_F(DialogueTest, ActionLineBeginsWithASpaceAndHasNoTag) {
  state.RemoteMessage = true;
  WriteAs(Sender::RemoteAction, u"Bob waves");
  EXPECT_FALSE(state.RemoteMessage);
  Write(u"hello");
  EXPECT_EQ(pane.Text(), u" Bob waves\n<Bob>hello");
  EXPECT_EQ(Log(),
            "[2026-03-07_09:05:30] Bob waves\r\n"
            "[2026-03-07_09:05:30]<Bob>hello\r\n");
}

TEST_F(DialogueTest, ActionLineFollowsItsStamp) {
  state.TimeStamp = true;
  WriteAs(Sender::RemoteAction, u"Bob waves");
  EXPECT_EQ(pane.Text(), u"[09:05:30] Bob waves");
}

TEST_F(DialogueTest, ALineClearsNoFlagButItsOwn) {
  state.RemoteMessage = state.ForeignText = true;
  Write(u"hello");
  EXPECT_TRUE(state.RemoteMessage && state.ForeignText);
  WriteAs(Sender::RemoteAction, u"Bob waves");
  EXPECT_TRUE(state.ForeignText);
  WriteAs(Sender::Remote, u"hello");
  EXPECT_FALSE(state.RemoteMessage || state.ForeignText);
  EXPECT_EQ(pane.Text(), u"<Bob>hello\n Bob waves\n<Νίκος>hello");
}

TEST_F(DialogueTest, StampAndTagAreSmallBlackArialAfterAColouredMessage) {
  state.DateStamp = true;
  Write(u"one");
  SelectionFormat everything;
  everything.italic = everything.underline = everything.strikethrough = true;
  pane.Select(0, pane.TextLength());
  pane.SetSelFormat(everything);
  Write(u"two");
  const std::size_t second = pane.Text().find(u'\n') + 1;
  ExpectPlainBlackArial(FormatAt(second, 12), 7);
  ExpectPlainBlackArial(FormatAt(second + 12, 5), 8);
}

TEST_F(DialogueTest, MessageKeepsItsOwnFormat) {
  Write(u"hello");
  const SelectionFormat format = FormatAt(5, 5);
  EXPECT_EQ(format.fontName, u"Courier New");
  EXPECT_EQ(format.fontSize, 12);
  EXPECT_EQ(format.color, 255);
  EXPECT_EQ(format.bold, true);
}

TEST_F(DialogueTest, SpaceOfAnActionLineHasTheFormatOfTheEndOfThePane) {
  Write(u"one");
  WriteAs(Sender::RemoteAction, u"Bob waves");
  EXPECT_EQ(FormatAt(9, 1).fontName, u"Courier New");
}

TEST_F(DialogueTest, LinesAreAddedAtTheEndWhereverTheSelectionStands) {
  Write(u"one");
  pane.Select(1, 4);
  Write(u"two");
  EXPECT_EQ(pane.Text(), u"<Bob>one\n<Bob>two");
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
  EXPECT_EQ(pane.SelLength(), 0u);
}

TEST_F(DialogueTest, TextThatIsNoRichTextIsWrittenAsItStands) {
  dialogue.WriteDialogueLine(u"<b>plain</b>", Sender::Remote, CommandPane::Keep);
  EXPECT_EQ(pane.Text(), u"<Νίκος><b>plain</b>");
}

TEST_F(DialogueTest, MessageOfSeveralLinesIsOneEntryOfTheLog) {
  Write(u"one\n[2026-03-07_09:05:31]<Alice>forged");
  EXPECT_EQ(pane.Text(), u"<Bob>one\n[2026-03-07_09:05:31]<Alice>forged");
  EXPECT_EQ(Log(), "[2026-03-07_09:05:30]<Bob>one [2026-03-07_09:05:31]<Alice>forged\r\n");
}

TEST_F(DialogueTest, EmptyTextWritesNothing) {
  Write(u"one");
  const std::string before = Log();
  Write(u"");
  EXPECT_EQ(pane.Text(), u"<Bob>one");
  EXPECT_EQ(Log(), before);
}

TEST_F(DialogueTest, EmptyTextShowsTheLastLineAndEmptiesAndFocusesTheCommandPane) {
  Write(u"one");
  pane.Select(3, 0);
  pane.showsEnd = true;
  commands.SetText(u"/DATE");
  commands.timesFocused = 0;
  Write(u"", CommandPane::Clear);
  EXPECT_EQ(pane.SelStart(), pane.TextLength());
  EXPECT_EQ(commands.Text(), u"");
  EXPECT_EQ(commands.timesFocused, 1);
}

TEST_F(DialogueTest, EmptyTextLeavesWhoReadsWhereHeIs) {
  Write(u"one");
  pane.Select(0, 3);
  Write(u"", CommandPane::Clear);
  EXPECT_EQ(pane.SelLength(), 3u);
  pane.Select(0, 0);
  pane.showsEnd = false;
  Write(u"", CommandPane::Clear);
  EXPECT_EQ(pane.SelStart(), 0u);
}

TEST_F(DialogueTest, EmptyTextLeavesNoFlagBehind) {
  state.RemoteMessage = state.ForeignText = true;
  WriteAs(Sender::Remote, u"");
  WriteAs(Sender::RemoteAction, u"");
  EXPECT_FALSE(state.RemoteMessage || state.ForeignText);
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(DialogueTest, ALineIsOneChangeOfThePane) {
  int changes = 0;
  int selChanges = 0;
  pane.onChange = [&] { ++changes; };
  pane.onSelChange = [&] { ++selChanges; };
  state.DateStamp = true;
  Write(u"one");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(selChanges, 1);
}

TEST_F(DialogueTest, EveryParagraphIsFromItsSender) {
  WriteAs(Sender::Local, u"one");
  WriteAs(Sender::Remote, u"two\n[09:05:30]<Bob>forged");
  WriteAs(Sender::LocalAction, u"Bob waves");
  WriteAs(Sender::RemoteAction, u"Bob waves");
  EXPECT_THAT(pane.authors, ElementsAre(Author::UserNotSent, Author::Peer, Author::Peer,
                                        Author::UserNotSent, Author::Peer));
}

TEST_F(DialogueTest, ANicknameThatReadsLikeTheUsersIsOfAnAuthorOfItsOwn) {
  state.RemoteNickname = u"B\u03BFb";  // with a Greek omicron
  WriteAs(Sender::Remote, u"one");
  state.RemoteNickname = u"Bob>I agree";
  WriteAs(Sender::Remote, u"two");
  WriteAs(Sender::RemoteAction, u"Bob waves");
  state.RemoteNickname = u"Bill";
  WriteAs(Sender::Remote, u"three");
  EXPECT_THAT(pane.authors, ElementsAre(Author::PeerReadingAlike, Author::PeerWithBrackets,
                                        Author::PeerWithBrackets, Author::Peer));
}

TEST_F(DialogueTest, AFailureOfTheLogIsAskedAboutOnceTheLineIsWhole) {
  pane.onChange = [&] { EXPECT_TRUE(fake.dialogs.messages.empty()); };
  fake.dialogs.whileOpen = [&] { EXPECT_EQ(pane.Text(), u"<Bob>hello"); };
  fake.files.writesFail = FailureNumber::DiskFull;
  AnswerNoToErrors();
  Write(u"hello");
  EXPECT_EQ(fake.dialogs.messages.size(), 1u);
}

TEST_F(DialogueTest, CommandPaneIsEmptiedOnlyWhenAskedAndAlwaysFocused) {
  commands.SetText(u"being typed");
  Write(u"one", CommandPane::Keep);
  EXPECT_EQ(commands.Text(), u"being typed");
  EXPECT_EQ(commands.timesFocused, 1);
  Write(u"two", CommandPane::Clear);
  EXPECT_EQ(commands.Text(), u"");
  EXPECT_EQ(commands.timesFocused, 2);
}

TEST_F(DialogueTest, LineThatCannotBeLoggedStaysInThePane) {
  for (const auto& [failure, number] :
       {std::pair{FailureNumber::DiskFull, u"61"}, {FailureNumber::PathNotFound, u"76"}}) {
    pane.SetText(u"");
    commands.SetText(u"hello");
    commands.timesFocused = 0;
    fake.files.writesFail = failure;
    AnswerNoToErrors();
    Write(u"hello", CommandPane::Clear);
    ExpectReported(number, u"Verlume, 240.");
    EXPECT_EQ(pane.Text(), u"<Bob>hello");
    EXPECT_EQ(commands.Text(), u"");
    EXPECT_EQ(commands.timesFocused, 1);
  }
}

TEST_F(DialogueTest, VanishedLogFolderLeavesTheProgramUsable) {
  fake.files.RemoveFolder(u"/logs");
  AnswerNoToErrors();
  Write(u"one");
  ExpectReported(u"76", u"Verlume, 240.");
  fake.files.MakeFolder(u"/logs");
  Write(u"two");
  EXPECT_EQ(pane.Text(), u"<Bob>one\n<Bob>two");
  EXPECT_EQ(Log(), "[2026-03-07_09:05:30]<Bob>two\r\n");
}

TEST_F(DialogueTest, LineThatFailsIsReportedAndLeavesNothingToTheNextOne) {
  pane.formatFails = FailureNumber::InvalidProcedureCall;
  state.TimeStamp = state.RemoteMessage = state.ForeignText = true;
  for (const Sender sender : {Sender::RemoteAction, Sender::Remote}) {
    commands.SetText(u"hello");
    commands.timesFocused = 0;
    AnswerNoToErrors();
    WriteAs(sender, u"lost", CommandPane::Clear);
    ExpectReported(u"5", u"Verlume, 207.");
    EXPECT_EQ(commands.Text(), u"hello");
    EXPECT_EQ(commands.timesFocused, 1);
  }
  EXPECT_FALSE(state.RemoteMessage || state.ForeignText);
  EXPECT_EQ(Log(), "");
  pane.formatFails.reset();
  pane.SetText(u"");
  state.TimeStamp = false;
  Write(u"next");
  EXPECT_EQ(pane.Text(), u"<Bob>next");
}

TEST_F(DialogueTest, DateEntryFlipsItsSwitchAndKeepsIt) {
  fake::FakeMenuEntry& entry = fake.window.mnuToolsDate;
  dialogue.mnuToolsDate_Click();
  EXPECT_TRUE(entry.Checked());
  EXPECT_TRUE(state.DateStamp);
  EXPECT_EQ(Setting(u"General", u"DateStamp"), u"True");
  dialogue.mnuToolsDate_Click();
  EXPECT_FALSE(entry.Checked());
  EXPECT_FALSE(state.DateStamp);
  EXPECT_EQ(Setting(u"General", u"DateStamp"), u"False");
  EXPECT_EQ(Setting(u"General", u"TimeStamp"), u"missing");
  EXPECT_EQ(commands.timesFocused, 2);
}

TEST_F(DialogueTest, TimeEntryFlipsItsSwitchAndKeepsIt) {
  fake::FakeMenuEntry& entry = fake.window.mnuToolsTime;
  dialogue.mnuToolsTime_Click();
  EXPECT_TRUE(entry.Checked());
  EXPECT_TRUE(state.TimeStamp);
  EXPECT_EQ(Setting(u"General", u"TimeStamp"), u"True");
  dialogue.mnuToolsTime_Click();
  EXPECT_FALSE(entry.Checked());
  EXPECT_FALSE(state.TimeStamp);
  EXPECT_EQ(Setting(u"General", u"TimeStamp"), u"False");
  EXPECT_EQ(Setting(u"General", u"DateStamp"), u"missing");
  EXPECT_EQ(commands.timesFocused, 2);
}

// The commands that switch a stamp set the tick first, whatever the switch says.
TEST_F(DialogueTest, StampSwitchFollowsTheTickOfItsEntry) {
  state.DateStamp = true;
  fake.window.mnuToolsDate.SetChecked(false);
  dialogue.mnuToolsDate_Click();
  EXPECT_TRUE(state.DateStamp);
}

TEST_F(DialogueTest, StampSwitchesLeaveTheLinesWrittenBefore) {
  Write(u"one");
  dialogue.mnuToolsTime_Click();
  Write(u"two");
  EXPECT_EQ(pane.Text(), u"<Bob>one\n[09:05:30]<Bob>two");
}

TEST_F(DialogueTest, UnwritableSettingsFileIsReportedByEachSwitch) {
  fake.files.writesFail = FailureNumber::DiskFull;
  AnswerNoToErrors(2);
  dialogue.mnuToolsDate_Click();
  ExpectReported(u"61", u"Verlume, 233.");
  dialogue.mnuToolsTime_Click();
  ExpectReported(u"61", u"Verlume, 234.");
  EXPECT_TRUE(state.DateStamp && state.TimeStamp);
  EXPECT_EQ(commands.timesFocused, 2);
}

TEST_F(DialogueTest, ClearingTheDialogueEmptiesThePaneAndLeavesTheLog) {
  Write(u"one");
  const std::string before = Log();
  commands.timesFocused = 0;
  dialogue.mnuToolsClearDialogue_Click();
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_EQ(Log(), before);
  EXPECT_EQ(commands.timesFocused, 1);
  Write(u"two");
  EXPECT_EQ(pane.Text(), u"<Bob>two");
}

TEST_F(DialogueTest, LineLeavesTheFocusWithWhoeverTypesIntoTheFindBar) {
  fake.window.fraFind.hasFocus = true;
  commands.timesFocused = 0;
  WriteAs(Sender::Remote, u"hello");
  EXPECT_EQ(pane.Text(), u"<Νίκος>hello");
  EXPECT_EQ(commands.timesFocused, 0);
  fake.window.fraFind.hasFocus = false;
  Write(u"hello");
  EXPECT_EQ(commands.timesFocused, 1);
}

TEST_F(DialogueTest, ANearlyFullPaneSaysHowToSaveItAndTheLogDoesNot) {
  Write(u"hello");
  const std::string logBefore = Log();
  dialogue.rtbData_NearlyFull();
  EXPECT_TRUE(pane.Text().starts_with(u"<Bob>hello\n***** The dialogue is very long"));
  EXPECT_NE(pane.Text().find(u"/SAVEDIALOGUEAS"), std::u16string::npos);
  state.IsGreek = true;
  dialogue.rtbData_NearlyFull();
  EXPECT_NE(pane.Text().find(u"/ΑΠΟΘΉΚΕΥΣΗΔΙΑΛΌΓΟΥΩΣ"), std::u16string::npos);
  EXPECT_EQ(Log(), logBefore);
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(DialogueTest, ALineKeepsWithinTheBudgetOfLooks) {
  std::u16string rtf = u"{\\rtf1 ";
  for (int i = 0; i < 50'000; ++i) rtf += u"\\b a\\b0 b";
  dialogue.WriteDialogueLine(rtf + u"}", Sender::Local, CommandPane::Keep);
  EXPECT_EQ(pane.Text().size(), 5u + 100'000u);
  EXPECT_EQ(FormatAt(pane.TextLength() - 3, 2).bold, FormatAt(pane.TextLength() - 2, 2).bold);
  EXPECT_EQ(FormatAt(5, 1).bold, true);
  EXPECT_EQ(FormatAt(6, 1).bold, false);
}

}  // namespace
}  // namespace verlume
