#include "commands/interpreter.h"

#include <gmock/gmock.h>

#include "commands/typing_side.h"
#include "platform/char_code.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Interpreter : public fake::TypingSide {
 protected:
  Interpreter() {
    fake.files.MakeFolder(u"/macros");
    state.MacrosFolder = u"/macros";
    textFormat.ApplyCommandStyle();
  }

  void KeepMacro(std::u16string_view name, std::u16string_view text) {
    richtext::Document document;
    document.text = text;
    if (!text.empty()) document.runs = {{text.size(), {}}};
    document.fonts = {{u"Arial"}};
    fake.files.ReplaceText(u"/macros/" + std::u16string(name) + u".rtf",
                           richtext::WriteRtf(document));
  }

  // Everything that reached the dialogue pane, and the texts that went to the peer.
  std::u16string Shown() const { return window.rtbData.Text(); }
  std::vector<std::u16string> Sent() const {
    std::vector<std::u16string> texts;
    for (const std::u16string& text : fake.socket.sent) {
      texts.push_back(richtext::ReadRtf(text).text);
    }
    return texts;
  }

  int Press(int code) {
    window.rtbCommands.onKeyPress(code);
    return code;
  }

  fake::FakeRichTextBox& pane = window.rtbCommands;
};

// Keys.

TEST_F(Interpreter, OtherCharactersAreTyped) {
  for (const int code : {1, 9, 32, 65, 945}) EXPECT_EQ(Press(code), code);
  pane.Type(u"αβγ");
  EXPECT_EQ(pane.Text(), u"αβγ");
  EXPECT_EQ(Shown(), u"");
}

TEST_F(Interpreter, EveryKeyYieldsToEvents) {
  fake.application.timesYielded = 0;
  Press(65);
  EXPECT_EQ(fake.application.timesYielded, 1);
}

TEST_F(Interpreter, EnterAndCtrlEnterNeverTypeALineBreak) {
  EXPECT_EQ(Press(char_code::kEnter), 0);
  EXPECT_EQ(Press(char_code::kCtrlEnter), 0);
}

TEST_F(Interpreter, CtrlEnterDoesNothing) {
  pane.Type(u"hello");
  Press(char_code::kCtrlEnter);
  EXPECT_EQ(pane.Text(), u"hello");
  EXPECT_EQ(Shown(), u"");
  EXPECT_EQ(state.History[0], u"0");
}

TEST_F(Interpreter, EnterOnAnEmptyPaneDoesNothing) {
  Connect();
  Press(char_code::kEnter);
  EXPECT_EQ(state.History[0], u"0");
  EXPECT_EQ(Shown(), u"");
  EXPECT_THAT(fake.socket.sent, IsEmpty());
}

TEST_F(Interpreter, TheLineIsReadAfterTheFirstYield) {
  pane.Type(u"hello");
  fake.application.onYield = [this] { pane.SetText(u""); };
  Press(char_code::kEnter);
  EXPECT_EQ(Shown(), u"");
  EXPECT_EQ(state.History[0], u"0");
}

// History.

TEST_F(Interpreter, EveryLineGoesIntoTheHistoryAsTyped) {
  Enter(u"hello");
  Enter(u"/bold");
  ASSERT_EQ(state.History[0], u"2");
  EXPECT_EQ(richtext::ReadRtf(state.History[1]).text, u"hello");
  EXPECT_EQ(richtext::ReadRtf(state.History[2]).text, u"/bold");
}

// Chat lines.

TEST_F(Interpreter, AChatLineIsShownAndSent) {
  Connect();
  Enter(u"hello");
  EXPECT_EQ(Shown(), u"<Bob>hello");
  EXPECT_THAT(Sent(), ElementsAre(u"hello"));
  EXPECT_TRUE(fake.socket.sent.at(0).starts_with(u"{\\rtf1"));
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_GT(pane.timesFocused, 0);
}

TEST_F(Interpreter, AChatLineIsShownWithoutAConnectionToo) {
  Enter(u"hello");
  EXPECT_EQ(Shown(), u"<Bob>hello");
  EXPECT_THAT(fake.socket.sent, IsEmpty());
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(Interpreter, ALineThatIsNoCommandIsAChatLine) {
  for (const std::u16string_view line :
       {u"/xyz", u"/", u"/ call", u" /call", u"call", u"/ΚΛΗΣΗ", u"//call", u"/call\u00A0host"}) {
    window.rtbData.SetText(u"");
    Enter(line);
    EXPECT_EQ(Shown(), u"<Bob>" + std::u16string(line));
    EXPECT_FALSE(state.IsCalling);
  }
}

TEST_F(Interpreter, AChatLineKeepsItsStyle) {
  Enter(u"/bold");
  Enter(u"hello");
  window.rtbData.Select(5, 5);
  EXPECT_EQ(window.rtbData.SelFormat().bold, true);
}

TEST_F(Interpreter, PlaceholdersWaitForAConnection) {
  Enter(u"$l calls $r");
  EXPECT_EQ(Shown(), u"<Bob>Bob calls $r");
  Connect();
  window.rtbData.SetText(u"");
  Enter(u"$τ calls $α");
  EXPECT_EQ(Shown(), u"<Bob>Bob calls Eve");
  EXPECT_THAT(Sent(), ElementsAre(u"Bob calls Eve"));
}

TEST_F(Interpreter, PlaceholdersWaitForTheSocketNotForTheHandshake) {
  Connect();
  state.IsConnected = false;
  Enter(u"$r");
  EXPECT_EQ(Shown(), u"<Bob>Eve");
}

TEST_F(Interpreter, TheCommandLineAndTheTextSentAreKept) {
  Connect();
  Enter(u"hello");
  EXPECT_EQ(state.CommandLine, u"hello");
  EXPECT_EQ(state.OutgoingText, fake.socket.sent.at(0));
}

// Commands.

TEST_F(Interpreter, ACommandWordIsUpperCased) {
  Enter(u"/call host 2000");
  EXPECT_TRUE(state.IsCalling);
  EXPECT_EQ(state.RemoteHost, u"host");
  EXPECT_EQ(state.RemotePort, 2000);
  EXPECT_EQ(Shown(), u"");
}

TEST_F(Interpreter, GreekWordsKeepTheirAccents) {
  for (const std::u16string_view word : {u"/κλήση", u"/ΚΛΉΣΗ", u"/Κλήση"}) {
    state.IsCalling = false;
    Enter(std::u16string(word) + u" host 2000");
    EXPECT_TRUE(state.IsCalling);
  }
}

TEST_F(Interpreter, BothLanguagesWorkWhateverTheInterfaceSpeaks) {
  state.IsGreek = true;
  Enter(u"/bold");
  EXPECT_TRUE(state.Font.Bold);
  state.IsGreek = false;
  Enter(u"/όχιέντονα");
  EXPECT_FALSE(state.Font.Bold);
}

TEST_F(Interpreter, ACommandIgnoresWhatFollowsIt) {
  Enter(u"/Bold extra words");
  EXPECT_TRUE(state.Font.Bold);
  EXPECT_EQ(Shown(), u"");
}

TEST_F(Interpreter, APlainCommandEmptiesAndFocusesThePaneBeforeItsAction) {
  std::u16string paneAtClick = u"?";
  int timesFocused = -1;
  state.OutgoingText = u"old";
  window.mnuHelpAbout.onClick = [&] {
    paneAtClick = pane.Text();
    timesFocused = pane.timesFocused;
    EXPECT_EQ(state.OutgoingText, u"");
  };
  pane.timesFocused = 0;
  Enter(u"/helpabout");
  EXPECT_EQ(paneAtClick, u"");
  EXPECT_EQ(timesFocused, 1);
}

TEST_F(Interpreter, APlainCommandYieldsBeforeAndAfterItsAction) {
  std::vector<std::u16string> events;
  pane.Type(u"/helpabout");
  fake.application.onYield = [&] { events.push_back(u"yield"); };
  window.mnuHelpAbout.onClick = [&] { events.push_back(u"action"); };
  Press(char_code::kEnter);
  EXPECT_THAT(events, ElementsAre(u"yield", u"yield", u"action", u"yield"));
}

TEST_F(Interpreter, ARoutineYieldsBeforeItRuns) {
  pane.Type(u"/size 9");
  std::vector<double> sizes;
  fake.application.onYield = [&] { sizes.push_back(state.Font.Size); };
  Press(char_code::kEnter);
  EXPECT_THAT(sizes, ElementsAre(10, 10));
  EXPECT_EQ(state.Font.Size, 9);
}

TEST_F(Interpreter, BlanksOfALineWithArgumentsArePutInOrder) {
  Enter(u"/call   host    2000   ");
  EXPECT_EQ(state.CommandLine, u"/call host 2000");
  EXPECT_TRUE(state.IsCalling);
}

TEST_F(Interpreter, BlanksOfOtherRoutinesStayAsTyped) {
  Enter(u"/cancel   now  ");
  EXPECT_EQ(state.CommandLine, u"/cancel   now  ");
}

TEST_F(Interpreter, ARoutineStartsWithoutOutgoingText) {
  state.OutgoingText = u"old";
  Enter(u"/nick Al");
  EXPECT_EQ(state.OutgoingText, u"");
  EXPECT_EQ(Shown(), u"");
  EXPECT_EQ(state.Nickname, u"Al");
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(Interpreter, ARoutineGetsItsOwnLineWhateverAnEventLeavesInTheState) {
  pane.Type(u"/nick Al");
  int yields = 0;
  fake.application.onYield = [&] {
    if (++yields == 2) state.CommandLine = u"/CALL elsewhere 1";
  };
  Press(char_code::kEnter);
  EXPECT_EQ(state.Nickname, u"Al");
}

// The row's own test shows the toggle's tick; here are the switches behind it.
TEST_F(Interpreter, OnAndOffCommandsCanBeRepeated) {
  window.mnuToolsDate.onClick = [this] { dialogue.mnuToolsDate_Click(); };
  window.mnuToolsTime.onClick = [this] { dialogue.mnuToolsTime_Click(); };
  for (int times = 0; times < 2; ++times) {
    Enter(u"/date");
    EXPECT_TRUE(state.DateStamp && window.mnuToolsDate.checked);
    Enter(u"/time");
    EXPECT_TRUE(state.TimeStamp && window.mnuToolsTime.checked);
  }
  for (int times = 0; times < 2; ++times) {
    Enter(u"/nodate");
    EXPECT_FALSE(state.DateStamp || window.mnuToolsDate.checked);
    Enter(u"/notime");
    EXPECT_FALSE(state.TimeStamp || window.mnuToolsTime.checked);
  }
}

TEST_F(Interpreter, AStyleCommandCanBeRepeated) {
  for (int times = 0; times < 2; ++times) {
    Enter(u"/italics");
    EXPECT_TRUE(state.Font.Italic && window.mnuFormatFontItalics.checked);
    EXPECT_EQ(window.chkItalics.value, 1);
  }
  for (int times = 0; times < 2; ++times) {
    Enter(u"/notitalics");
    EXPECT_FALSE(state.Font.Italic || window.mnuFormatFontItalics.checked);
    EXPECT_EQ(window.chkItalics.value, 0);
  }
}

TEST_F(Interpreter, ASizeOutOfRangeIsRefused) {
  Enter(u"/size 12");
  EXPECT_EQ(state.Font.Size, 10);
  EXPECT_THAT(fake.dialogs.messages, SizeIs(1));
}

// Leaving.

TEST_F(Interpreter, ExitUnloadsAtOnceWhileIdle) {
  Enter(u"/exit");
  EXPECT_TRUE(window.window.unloaded);
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(Interpreter, ExitAsksWhileWaitingAndUnloadsOnYes) {
  Enter(u"/wait 2000");
  fake.dialogs.answers = {Answer::Yes};
  Enter(u"/έξοδος");
  EXPECT_THAT(fake.dialogs.messages, SizeIs(1));
  EXPECT_TRUE(window.window.unloaded);
}

TEST_F(Interpreter, ExitRefusedStays) {
  Enter(u"/wait 2000");
  fake.dialogs.answers = {Answer::No};
  Enter(u"/exit");
  EXPECT_FALSE(window.window.unloaded);
  EXPECT_TRUE(state.IsWaiting);
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(Interpreter, ExitYieldsBetweenTheAnswerAndTheEnd) {
  pane.Type(u"/exit");
  fake.application.onYield = [this] {
    EXPECT_FALSE(window.window.unloaded);
    if (state.ExitConfirmed) state.ExitConfirmed = false;
  };
  Press(char_code::kEnter);
  EXPECT_FALSE(window.window.unloaded);
}

// Macros.

TEST_F(Interpreter, ALineNamedAfterAMacroBecomesTheMacro) {
  Connect();
  KeepMacro(u"hello", u"good morning $r");
  Enter(u"/hello");
  EXPECT_EQ(Shown(), u"<Bob>good morning Eve");
  EXPECT_THAT(Sent(), ElementsAre(u"good morning Eve"));
  EXPECT_EQ(richtext::ReadRtf(state.History[1]).text, u"/hello");
  EXPECT_EQ(state.CommandLine, u"good morning $r");
}

TEST_F(Interpreter, TheMacrosFolderMayEndInASeparator) {
  state.MacrosFolder = u"/macros/";
  KeepMacro(u"hello", u"good morning");
  Enter(u"/hello");
  EXPECT_EQ(Shown(), u"<Bob>good morning");
}

TEST_F(Interpreter, AMacroTakesThePlaceOfACommand) {
  KeepMacro(u"BOLD", u"not bold at all");
  Enter(u"/BOLD");
  EXPECT_FALSE(state.Font.Bold);
  EXPECT_EQ(Shown(), u"<Bob>not bold at all");
}

TEST_F(Interpreter, AMacroMayHoldACommand) {
  KeepMacro(u"b", u"/bold");
  Enter(u"/b");
  EXPECT_TRUE(state.Font.Bold);
  EXPECT_EQ(Shown(), u"");
}

TEST_F(Interpreter, AMacroIsNotLookedUpTwice) {
  KeepMacro(u"one", u"/two");
  KeepMacro(u"two", u"end");
  Enter(u"/one");
  EXPECT_EQ(Shown(), u"<Bob>/two");
}

TEST_F(Interpreter, TheWholeLineIsTheMacrosName) {
  KeepMacro(u"call me", u"macro");
  Enter(u"/call me");
  EXPECT_EQ(Shown(), u"<Bob>macro");
  KeepMacro(u"size", u"macro");
  Enter(u"/size 9");
  EXPECT_EQ(state.Font.Size, 9);
}

TEST_F(Interpreter, ALineWithoutASlashIsNoMacro) {
  KeepMacro(u"ello", u"macro");
  Enter(u"hello");
  EXPECT_EQ(Shown(), u"<Bob>hello");
}

TEST_F(Interpreter, WithoutAMacrosFolderThereAreNoMacros) {
  fake.files.ReplaceText(u"/hello.rtf", u"{\\rtf1 from the root}");
  state.MacrosFolder.clear();
  Enter(u"/hello");
  EXPECT_EQ(Shown(), u"<Bob>/hello");
}

TEST_F(Interpreter, ANameThatLeavesTheFolderIsNoMacro) {
  fake.files.MakeFolder(u"/macros/..");
  fake.files.ReplaceText(u"/macros/../secret.rtf", u"{\\rtf1 secret}");
  Enter(u"/../secret");
  EXPECT_EQ(Shown(), u"<Bob>/../secret");
  Enter(u"/a:b");
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(Interpreter, AnEmptyMacroSendsNothing) {
  Connect();
  KeepMacro(u"nothing", u"");
  Enter(u"/nothing");
  EXPECT_EQ(Shown(), u"");
  EXPECT_THAT(fake.socket.sent, IsEmpty());
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_EQ(state.History[0], u"1");
}

TEST_F(Interpreter, LinesOfAMacroBecomeOne) {
  KeepMacro(u"two", u"one\ntwo");
  Enter(u"/two");
  EXPECT_EQ(Shown(), u"<Bob>one two");
}

// Action lines.

class ActionLines : public Interpreter {};

TEST_F(ActionLines, TheWordBecomesTheNicknameAndTheLineHasNoTag) {
  Enter(u"/mE waves");
  EXPECT_EQ(Shown(), u" Bob waves");
  window.rtbData.SetText(u"");
  Enter(u"/εγώ γελάω");
  EXPECT_EQ(Shown(), u" Bob γελάω");
  EXPECT_FALSE(state.RemoteMessage);
}

TEST_F(ActionLines, TravelMarkedAsActionLines) {
  Connect();
  Enter(u"/me waves to $r");
  ASSERT_THAT(fake.socket.sent, SizeIs(1));
  const std::u16string opening = state.ProtocolMarker + u"M";
  ASSERT_TRUE(fake.socket.sent[0].starts_with(opening));
  EXPECT_EQ(richtext::ReadRtf(fake.socket.sent[0].substr(opening.size())).text,
            u"Bob waves to Eve");
  EXPECT_EQ(opening + state.OutgoingText, fake.socket.sent[0]);
}

TEST_F(ActionLines, TheNextLineHasItsTagAgain) {
  Enter(u"/me waves");
  window.rtbData.SetText(u"");
  Enter(u"hello");
  EXPECT_EQ(Shown(), u"<Bob>hello");
}

TEST_F(ActionLines, ALongerWordIsAChatLine) {
  Enter(u"/mexico");
  EXPECT_EQ(Shown(), u"<Bob>/mexico");
}

TEST_F(ActionLines, AFontNamedLikeTheWordIsLeftAlone) {
  SelectionFormat format;
  format.fontName = u"A/me";
  pane.SetSelFormat(format);
  Enter(u"/me waves");
  EXPECT_EQ(Shown(), u" Bob waves");
  window.rtbData.Select(1, 9);
  EXPECT_EQ(window.rtbData.SelFormat().fontName, u"A/me");
}

TEST_F(ActionLines, ALineTakenAwayMeanwhileIsNotSent) {
  Connect();
  for (const std::u16string_view left : {u"", u"something else"}) {
    pane.SetText(u"/me waves");
    int yields = 0;
    fake.application.onYield = [&] {
      if (++yields == 2) pane.SetText(left);
    };
    Press(char_code::kEnter);
    EXPECT_EQ(Shown(), u"");
    EXPECT_THAT(fake.socket.sent, IsEmpty());
    EXPECT_EQ(pane.Text(), left);
    EXPECT_FALSE(state.RemoteMessage);
  }
}

// Failures.

TEST_F(Interpreter, AFailureIsReportedUnderTheHandlersNumber) {
  Connect();
  pane.Type(u"hello");
  state.History[0] = u"many";
  fake.dialogs.answers = {Answer::No};
  EXPECT_EQ(Press(char_code::kEnter), 0);
  ASSERT_THAT(fake.dialogs.messages, SizeIs(1));
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 204.");
  EXPECT_EQ(fake.socket.State(), SocketState::Closed);
}

TEST_F(Interpreter, AFailingMenuActionIsReportedTheSameWay) {
  window.mnuHelpAbout.onClick = [] { throw RunTimeFailure(FailureNumber::PathNotFound); };
  fake.dialogs.answers = {Answer::No};
  Enter(u"/helpabout");
  ASSERT_THAT(fake.dialogs.messages, SizeIs(1));
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 204.");
}

}  // namespace
}  // namespace verlume
