// Why calls and waits fail, as the user is told.
#include <gtest/gtest.h>

#include "shell/language.h"
#include "support/side.h"

namespace verlume {
namespace {

class ConnectionNoteTest : public testing::Test, protected fake::TwoSides {
 protected:
  void CallAndFail(CallFailure failure) {
    network.fails = failure;
    alice.Call(u"bob 4000");
    network.RunUntilIdle();
    network.fails.reset();
  }
  static std::u16string ToolTip(const fake::Side& side) {
    return side.fake.window.lblStatus.toolTip;
  }
  std::u16string ToolTip() const { return ToolTip(alice); }
};

TEST_F(ConnectionNoteTest, EveryReasonOfAFailedCallHasItsWords) {
  const struct {
    CallFailure failure;
    std::u16string_view says;
  } kReasons[] = {
      {CallFailure::UnknownHost, u"No computer named bob was found. "},
      {CallFailure::Refused, u"The computer bob refused the call: nobody waits on port 4000 there"},
      {CallFailure::Silent, u"The computer bob did not answer. "},
      {CallFailure::Unreachable, u"The computer bob cannot be reached from here. "},
      {CallFailure::Other, u"The call to bob on port 4000 could not be made. "},
  };
  for (const auto& [failure, says] : kReasons) {
    CallAndFail(failure);
    EXPECT_EQ(alice.Status(),
              u"Remote computer / port: bob / 4000. A connection could NOT be established.");
    EXPECT_TRUE(ToolTip().starts_with(u"Status: " + std::u16string(says)));
  }
}

TEST_F(ConnectionNoteTest, FollowsTheLanguage) {
  CallAndFail(CallFailure::Refused);
  alice.state.IsGreek = true;
  Language language(alice.state, alice.fake.platform, alice.errors, alice.settings);
  language.ApplyLanguage();
  EXPECT_TRUE(
      ToolTip().starts_with(u"Κατάσταση: Ο υπολογιστής bob αρνήθηκε την κλήση: κανείς δεν "
                            u"περιμένει εκεί στη θύρα 4000."));
}

TEST_F(ConnectionNoteTest, StaysUntilTheNextAttempt) {
  CallAndFail(CallFailure::Silent);
  alice.actions.RefreshLocalIP();
  EXPECT_NE(ToolTip(), u"Status");
  alice.Call(u"bob 4000");
  EXPECT_EQ(ToolTip(), u"Status");
  alice.actions.CancelWaitOrCall();
  CallAndFail(CallFailure::Silent);
  alice.Wait(u"4001");
  EXPECT_EQ(ToolTip(), u"Status");
}

TEST_F(ConnectionNoteTest, ACallThatIsTakenAndEndedMayHaveBeenRefused) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::No};
  alice.Call(u"bob 4000");
  network.RunUntilIdle();
  EXPECT_TRUE(ToolTip().starts_with(u"Status: The computer bob took the call and ended it again."));
  EXPECT_EQ(ToolTip(bob), u"Status") << "who refuses knows it";
}

TEST_F(ConnectionNoteTest, ACallerThatLeavesIsNoted) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.fake.socket.onDataArrival = nullptr;
  alice.Call(u"bob 4000");
  network.RunUntilIdle();
  alice.actions.CancelWaitOrCall();
  network.RunUntilIdle();
  EXPECT_TRUE(ToolTip(bob).starts_with(u"Status: The caller left before the conversation began."));
}

TEST_F(ConnectionNoteTest, ATakenPortIsAnErrorAndExplained) {
  bob.Wait(u"4000");
  alice.fake.dialogs.answers = {Answer::No};
  alice.Wait(u"4000");
  EXPECT_NE(alice.fake.dialogs.messages.back().text.find(u"10048"), std::u16string::npos);
  EXPECT_EQ(ToolTip(),
            u"Status: A program on this computer already uses port 4000. Wait on another port.");
}

TEST_F(ConnectionNoteTest, AForbiddenPortIsAnErrorAndExplained) {
  network.forbiddenPorts = {80};
  alice.fake.dialogs.answers = {Answer::No};
  alice.Wait(u"80");
  EXPECT_NE(alice.fake.dialogs.messages.back().text.find(u" 70 "), std::u16string::npos);
  EXPECT_EQ(ToolTip(),
            u"Status: This computer does not let you wait on port 80. Choose a port from 1024 to "
            u"32767.");
}

TEST_F(ConnectionNoteTest, ALostConversationIsNoFailedCall) {
  Connect();
  bob.actions.CloseConnection();
  network.RunUntilIdle();
  EXPECT_EQ(ToolTip(), u"Status");
}

}  // namespace
}  // namespace verlume
