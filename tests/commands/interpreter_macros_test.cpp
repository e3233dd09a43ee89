#include "commands/interpreter.h"

#include <gmock/gmock.h>

#include "commands/interpreter_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class InterpreterMacros : public fake::InterpreterSide {};

TEST_F(InterpreterMacros, ALineNamedAfterAMacroBecomesTheMacro) {
  Connect();
  KeepMacro(u"hello", u"good morning $r");
  Enter(u"/hello");
  EXPECT_EQ(Shown(), u"<Bob>good morning Eve");
  EXPECT_THAT(Sent(), ElementsAre(u"good morning Eve"));
  EXPECT_EQ(richtext::ReadRtf(state.History[1]).text, u"/hello");
  EXPECT_EQ(state.CommandLine, u"good morning $r");
}

TEST_F(InterpreterMacros, AMacroTakesThePlaceOfACommand) {
  KeepMacro(u"BOLD", u"not bold at all");
  Enter(u"/BOLD");
  EXPECT_FALSE(state.Font.Bold);
  EXPECT_EQ(Shown(), u"<Bob>not bold at all");
}

TEST_F(InterpreterMacros, AMacroMayHoldACommand) {
  KeepMacro(u"b", u"/bold");
  Enter(u"/b");
  EXPECT_TRUE(state.Font.Bold);
  EXPECT_EQ(Shown(), u"");
}

TEST_F(InterpreterMacros, AMacroIsNotLookedUpTwice) {
  KeepMacro(u"one", u"/two");
  KeepMacro(u"two", u"end");
  Enter(u"/one");
  EXPECT_EQ(Shown(), u"<Bob>/two");
}

TEST_F(InterpreterMacros, TheWholeLineIsTheMacrosName) {
  KeepMacro(u"call me", u"macro");
  Enter(u"/call me");
  EXPECT_EQ(Shown(), u"<Bob>macro");
  KeepMacro(u"size", u"macro");
  Enter(u"/size 9");
  EXPECT_EQ(state.Font.Size, 9);
}

TEST_F(InterpreterMacros, ALineWithoutASlashIsNoMacro) {
  KeepMacro(u"ello", u"macro");
  Enter(u"hello");
  EXPECT_EQ(Shown(), u"<Bob>hello");
}

TEST_F(InterpreterMacros, WithoutAMacrosFolderThereAreNoMacros) {
  fake.files.ReplaceText(u"/hello.rtf", u"{\\rtf1 from the root}");
  state.MacrosFolder.clear();
  Enter(u"/hello");
  EXPECT_EQ(Shown(), u"<Bob>/hello");
}

TEST_F(InterpreterMacros, ANameThatLeavesTheFolderIsNoMacro) {
  fake.files.MakeFolder(u"/macros/..");
  fake.files.ReplaceText(u"/macros/../secret.rtf", u"{\\rtf1 secret}");
  Enter(u"/../secret");
  EXPECT_EQ(Shown(), u"<Bob>/../secret");
  Enter(u"/a:b");
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(InterpreterMacros, AnEmptyMacroSendsNothing) {
  Connect();
  KeepMacro(u"nothing", u"");
  Enter(u"/nothing");
  EXPECT_EQ(Shown(), u"");
  EXPECT_THAT(fake.socket.sent, IsEmpty());
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_EQ(state.History[0], u"1");
}

TEST_F(InterpreterMacros, LinesOfAMacroBecomeOne) {
  KeepMacro(u"two", u"one\ntwo");
  Enter(u"/two");
  EXPECT_EQ(Shown(), u"<Bob>one two");
}

}  // namespace
}  // namespace verlume
