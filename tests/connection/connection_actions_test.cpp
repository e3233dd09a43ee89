// What all actions share.
#include "connection/connection_actions.h"

#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class ConnectionActionsTest : public testing::Test, protected fake::TwoSides {
 protected:
  // Runs the action and returns whether the focus was given back.
  bool FocusesAfter(fake::Action action) {
    alice.fake.window.rtbCommands.timesFocused = 0;
    action(alice.actions, alice.state.CommandLine);
    return alice.fake.window.rtbCommands.timesFocused > 0;
  }
  fake::FakeDialogs& dialogs = alice.fake.dialogs;
};

TEST_F(ConnectionActionsTest, MenuEntriesRunTheBareCommand) {
  const struct {
    void (ConnectionActions::*entry)();
    std::u16string_view word;
  } kEntries[] = {{&ConnectionActions::mnuCommCall_Click, u"/CALL"},
                  {&ConnectionActions::mnuCommWait_Click, u"/WAIT"},
                  {&ConnectionActions::mnuCommCancel_Click, u"/CANCEL"},
                  {&ConnectionActions::mnuCommClose_Click, u"/CLOSE"},
                  {&ConnectionActions::mnuCommRefresh_Click, u"/REFRESH"},
                  {&ConnectionActions::mnuToolsNick_Click, u"/NICK"}};
  for (const auto& [entry, word] : kEntries) {
    ResetConnection(alice.state, alice.fake.platform);
    dialogs.typed = {u""};
    alice.state.CommandLine = u"before";
    alice.state.OutgoingText = u"before";
    (alice.actions.*entry)();
    EXPECT_EQ(alice.state.CommandLine, word);
    EXPECT_EQ(alice.state.OutgoingText, u"");
    EXPECT_EQ(alice.DialoguePane(), u"");
  }
}

TEST_F(ConnectionActionsTest, MenuEntriesDoWhatTheCommandDoes) {
  alice.actions.mnuCommWait_Click();
  EXPECT_EQ(alice.State(), ConnectionState::Waiting);
  alice.actions.mnuCommCancel_Click();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  dialogs.typed = {u"bob", u"4000"};
  alice.actions.mnuCommCall_Click();
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  alice.actions.mnuCommCancel_Click();
  Connect();
  alice.actions.mnuCommClose_Click();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  alice.fake.socket.localIP = u"198.51.100.7";
  alice.actions.mnuCommRefresh_Click();
  EXPECT_EQ(alice.state.LocalAddress, u"198.51.100.7");
  dialogs.typed = {u"Ally"};
  alice.actions.mnuToolsNick_Click();
  EXPECT_EQ(alice.state.Nickname, u"Ally");
}

TEST_F(ConnectionActionsTest, EveryActionEndsWithTheFocusInTheCommandPane) {
  dialogs.typed = {u"", u""};
  alice.state.CommandLine = u"/CALL";
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::CallRemote>));        // given up
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::SetNickname>));       // given up
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::CancelWaitOrCall>));  // a note
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::CloseConnection>));   // a note
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::RefreshLocalIP>));    // a note
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::ConfirmExit>));       // no question
  Connect();
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::CallRemote>));   // refused
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::WaitForCall>));  // refused
  dialogs.answers = {Answer::No};
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::ConfirmExit>));  // not confirmed
}

TEST_F(ConnectionActionsTest, AReportedFailureEndsWithTheFocusInTheCommandPaneToo) {
  alice.state.CommandLine = u"/WAIT 70000";
  dialogs.answers = {Answer::No};
  EXPECT_TRUE(FocusesAfter(&fake::Run<&ConnectionActions::WaitForCall>));
  EXPECT_EQ(dialogs.messages.back().title, u"Verlume, 205.");
}

TEST_F(ConnectionActionsTest, YesToTheErrorReportEndsTheProgram) {
  dialogs.answers = {Answer::Yes};
  alice.Wait(u"70000");
  EXPECT_TRUE(alice.fake.window.window.unloaded);
}

}  // namespace
}  // namespace verlume
