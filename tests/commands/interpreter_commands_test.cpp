#include "commands/interpreter.h"

#include <gmock/gmock.h>

#include "commands/interpreter_fixture.h"
#include "platform/char_code.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class InterpreterCommands : public fake::InterpreterSide {};

// Commands.

TEST_F(InterpreterCommands, ACommandWordIsUpperCased) {
  Enter(u"/call host 2000");
  EXPECT_TRUE(state.IsCalling);
  EXPECT_EQ(state.RemoteHost, u"host");
  EXPECT_EQ(state.RemotePort, 2000);
  EXPECT_EQ(Shown(), u"");
}

TEST_F(InterpreterCommands, GreekWordsKeepTheirAccents) {
  for (const std::u16string_view word : {u"/κλήση", u"/ΚΛΉΣΗ", u"/Κλήση"}) {
    state.IsCalling = false;
    Enter(std::u16string(word) + u" host 2000");
    EXPECT_TRUE(state.IsCalling);
  }
}

TEST_F(InterpreterCommands, BothLanguagesWorkWhateverTheInterfaceSpeaks) {
  state.IsGreek = true;
  Enter(u"/bold");
  EXPECT_TRUE(state.Font.Bold);
  state.IsGreek = false;
  Enter(u"/όχιέντονα");
  EXPECT_FALSE(state.Font.Bold);
}

TEST_F(InterpreterCommands, ACommandIgnoresWhatFollowsIt) {
  Enter(u"/Bold extra words");
  EXPECT_TRUE(state.Font.Bold);
  EXPECT_EQ(Shown(), u"");
}

TEST_F(InterpreterCommands, APlainCommandEmptiesAndFocusesThePaneBeforeItsAction) {
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

TEST_F(InterpreterCommands, APlainCommandYieldsBeforeAndAfterItsAction) {
  std::vector<std::u16string> events;
  pane.Type(u"/helpabout");
  fake.application.onYield = [&] { events.push_back(u"yield"); };
  window.mnuHelpAbout.onClick = [&] { events.push_back(u"action"); };
  Press(char_code::kEnter);
  EXPECT_THAT(events, ElementsAre(u"yield", u"yield", u"action", u"yield"));
}

TEST_F(InterpreterCommands, ARoutineYieldsBeforeItRuns) {
  pane.Type(u"/size 9");
  std::vector<double> sizes;
  fake.application.onYield = [&] { sizes.push_back(state.Font.Size); };
  Press(char_code::kEnter);
  EXPECT_THAT(sizes, ElementsAre(10, 10));
  EXPECT_EQ(state.Font.Size, 9);
}

TEST_F(InterpreterCommands, BlanksOfALineWithArgumentsArePutInOrder) {
  Enter(u"/call   host    2000   ");
  EXPECT_EQ(state.CommandLine, u"/call host 2000");
  EXPECT_TRUE(state.IsCalling);
}

TEST_F(InterpreterCommands, BlanksOfOtherRoutinesStayAsTyped) {
  Enter(u"/cancel   now  ");
  EXPECT_EQ(state.CommandLine, u"/cancel   now  ");
}

TEST_F(InterpreterCommands, ARoutineStartsWithoutOutgoingText) {
  state.OutgoingText = u"old";
  Enter(u"/nick Al");
  EXPECT_EQ(state.OutgoingText, u"");
  EXPECT_EQ(Shown(), u"");
  EXPECT_EQ(state.Nickname, u"Al");
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(InterpreterCommands, ARoutineGetsItsOwnLineWhateverAnEventLeavesInTheState) {
  pane.Type(u"/nick Al");
  int yields = 0;
  fake.application.onYield = [&] {
    if (++yields == 2) state.CommandLine = u"/CALL elsewhere 1";
  };
  Press(char_code::kEnter);
  EXPECT_EQ(state.Nickname, u"Al");
}

TEST_F(InterpreterCommands, ARefusedRoutineLeavesThePaneEmptyAndItsLineInTheHistory) {
  Connect();
  for (const std::u16string_view line :
       {u"/call host 2000", u"/wait  2000 ", u"/cancel   now", u"/refresh", u"/size 12"}) {
    const std::size_t boxes = fake.dialogs.messages.size();
    Enter(line);
    EXPECT_THAT(fake.dialogs.messages, SizeIs(boxes + 1));
    EXPECT_EQ(pane.Text(), u"");
    pane.PressKey(key_code::kPageUp);
    EXPECT_EQ(pane.Text(), line);
    pane.PressKey(key_code::kEscape);
  }
  EXPECT_THAT(Sent(), IsEmpty());
}

TEST_F(InterpreterCommands, ARefusedRoutineDoesNotJoinTheNextLine) {
  Enter(u"/close");
  Enter(u"hi");
  EXPECT_EQ(Shown(), u"<Bob>hi");
}

TEST_F(InterpreterCommands, ARoutineThatFailsOrIsGivenUpLeavesThePaneEmptyToo) {
  fake.dialogs.answers = {Answer::No};
  Enter(u"/wait 70000");
  EXPECT_EQ(fake.dialogs.messages.back().title, u"Verlume, 205.");
  EXPECT_EQ(pane.Text(), u"");
  fake.dialogs.typed = {u""};
  Enter(u"/call");
  EXPECT_THAT(fake.dialogs.asked, SizeIs(1));
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(InterpreterCommands, WhatComesIntoThePaneDuringARoutineStays) {
  fake.dialogs.whileOpen = [this] { pane.SetText(u"another line"); };
  Enter(u"/close");
  EXPECT_EQ(pane.Text(), u"another line");
}

// The test of the command table checks the ticks of the toggles; this one checks the switches
// behind them.
TEST_F(InterpreterCommands, OnAndOffCommandsCanBeRepeated) {
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

TEST_F(InterpreterCommands, AStyleCommandCanBeRepeated) {
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

// Leaving.

TEST_F(InterpreterCommands, ExitUnloadsAtOnceWhileIdle) {
  Enter(u"/exit");
  EXPECT_TRUE(window.window.unloaded);
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(InterpreterCommands, ExitAsksWhileWaitingAndUnloadsOnYes) {
  Enter(u"/wait 2000");
  fake.dialogs.answers = {Answer::Yes};
  Enter(u"/έξοδος");
  EXPECT_THAT(fake.dialogs.messages, SizeIs(1));
  EXPECT_TRUE(window.window.unloaded);
}

TEST_F(InterpreterCommands, ExitRefusedStays) {
  Enter(u"/wait 2000");
  fake.dialogs.answers = {Answer::No};
  Enter(u"/exit");
  EXPECT_FALSE(window.window.unloaded);
  EXPECT_TRUE(state.IsWaiting);
  EXPECT_EQ(pane.Text(), u"");
}

TEST_F(InterpreterCommands, ExitYieldsBetweenTheAnswerAndTheEnd) {
  pane.Type(u"/exit");
  fake.application.onYield = [this] {
    EXPECT_FALSE(window.window.unloaded);
    if (state.ExitConfirmed) state.ExitConfirmed = false;
  };
  Press(char_code::kEnter);
  EXPECT_FALSE(window.window.unloaded);
}

}  // namespace
}  // namespace verlume
