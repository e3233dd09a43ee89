#include "commands/interpreter.h"

#include <gmock/gmock.h>

#include "commands/interpreter_fixture.h"
#include "platform/char_code.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Interpreter : public fake::InterpreterSide {};

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
