// The menu of the computers that were called last.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class CallAgainTest : public testing::Test, protected fake::TwoSides {
 protected:
  std::vector<std::u16string>& Choices() { return alice.fake.window.mnuCommCallAgain.choices; }
  std::u16string Stored(std::u16string_view key) {
    return alice.settings.ReadSetting(u"General", key, u"none", 100);
  }
  void CallAndGiveUp(std::u16string_view host) {
    alice.Call(host);
    alice.actions.CancelWaitOrCall();
  }
  // As a program that finds these lines in its settings file.
  void Read(std::u16string_view lines) {
    alice.fake.files.ReplaceText(alice.state.IniFile, u"[General]\r\n" + std::u16string(lines),
                                 Readers::OwnerOnly);
    ReadCalledHosts(alice.state, alice.fake.platform, alice.settings);
  }
};

TEST_F(CallAgainTest, TheNewestCallComesFirstAndEachOnce) {
  CallAndGiveUp(u"bob 4000");
  CallAndGiveUp(u"carol 4000");
  CallAndGiveUp(u"bob 4000");
  CallAndGiveUp(u"bob 4001");
  EXPECT_THAT(Choices(), ElementsAre(u"bob 4001", u"bob 4000", u"carol 4000"));
  EXPECT_EQ(Stored(u"Called1"), u"bob 4001");
  EXPECT_EQ(Stored(u"Called3"), u"carol 4000");
  EXPECT_EQ(Stored(u"Called4"), u"none");
}

TEST_F(CallAgainTest, WhoAnsweredIsKept) {
  Connect();
  EXPECT_THAT(Choices(), ElementsAre(u"bob 4000   (Bob)"));
  EXPECT_EQ(Stored(u"Called1"), u"bob 4000 Bob");
  EXPECT_THAT(bob.fake.window.mnuCommCallAgain.choices, IsEmpty()) << "it was called";
  alice.actions.CloseConnection();
  network.RunUntilIdle();
  CallAndGiveUp(u"bob 4000");
  EXPECT_THAT(Choices(), ElementsAre(u"bob 4000   (Bob)"));
}

// A caller can choose the port it calls from.
TEST_F(CallAgainTest, WhoCallsFromAPortThatWasCalledIsNotTakenForItsOwner) {
  alice.Wait(u"4001");
  alice.fake.dialogs.answers = {Answer::Yes};
  bob.Call(u"alice 4001");
  alice.state.RemoteHost = u"carol";
  alice.state.CalledHosts = {{u"carol", bob.fake.socket.LocalPort(), {}}};
  network.RunUntilIdle();
  ASSERT_EQ(alice.State(), ConnectionState::Connected);
  EXPECT_EQ(alice.state.CalledHosts.front().nickname, u"");
}

TEST_F(CallAgainTest, AtMostTwentyAreKept) {
  for (int i = 1; i <= 25; ++i) CallAndGiveUp(u"bob " + DecimalText(4000 + i));
  EXPECT_THAT(Choices(), SizeIs(kMostCalledHosts));
  EXPECT_EQ(Choices().front(), u"bob 4025");
  EXPECT_EQ(Stored(u"Called20"), u"bob 4006");
  EXPECT_EQ(Stored(u"Called21"), u"none");
}

TEST_F(CallAgainTest, ChoosingOneCallsIt) {
  CallAndGiveUp(u"bob 4000");
  CallAndGiveUp(u"carol 4001");
  alice.actions.mnuCommCallAgain_Choose(1);
  EXPECT_EQ(alice.Status(), u"Remote computer / port: bob / 4000. Calling...");
  EXPECT_EQ(alice.state.CommandLine, u"/CALL bob 4000");
  EXPECT_THAT(Choices(), ElementsAre(u"bob 4000", u"carol 4001"));
  alice.actions.mnuCommCallAgain_Choose(7);
  EXPECT_EQ(alice.state.RemotePort, 4000);
}

TEST_F(CallAgainTest, ForgettingEmptiesTheMenuAndTheFile) {
  CallAndGiveUp(u"bob 4000");
  CallAndGiveUp(u"carol 4001");
  EXPECT_EQ(alice.fake.window.mnuCommCallAgain.last, u"Forget these");
  alice.actions.mnuCommCallAgain_Last();
  EXPECT_THAT(Choices(), IsEmpty());
  EXPECT_EQ(Stored(u"Called1"), u"");
  EXPECT_EQ(Stored(u"Called2"), u"");
}

TEST_F(CallAgainTest, TheNextProgramFindsThem) {
  Read(u"Called1=bob 4000 Bob the builder\r\nCalled2=fd77::1 80\r\n");
  EXPECT_THAT(Choices(), ElementsAre(u"bob 4000   (Bob the builder)", u"fd77::1 80"));
}

TEST_F(CallAgainTest, LinesThatMakeNoSenseAreLeftOut) {
  Read(
      u"Called1=\r\nCalled2=bob\r\nCalled3=bob port\r\nCalled4=bob 40000\r\nCalled5=bob -1\r\n"
      u"Called6= 4000\r\nCalled7=bo\u202Eb 4000\r\nCalled8=" +
      std::u16string(300, u'x') +
      u" 4000\r\nCalled9=bob 4000 e\u202Evil\r\nCalled10=bob 4000 again\r\nCalled21=eve 4000\r\n");
  EXPECT_THAT(Choices(), ElementsAre(u"bob 4000   (e\\u202Evil)"));
}

TEST_F(CallAgainTest, AHostThatALineCannotHoldIsCalledButNotKept) {
  alice.fake.dialogs.typed = {u"two words", u"4000"};
  alice.Call(u"");
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  EXPECT_THAT(Choices(), IsEmpty());
}

TEST_F(CallAgainTest, AFileThatCannotBeWrittenDoesNotEndTheCall) {
  alice.fake.files.writesFail = FailureNumber::PathFileAccessError;
  alice.Call(u"bob 4000");
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  EXPECT_THAT(alice.fake.dialogs.messages, IsEmpty());
  EXPECT_THAT(Choices(), ElementsAre(u"bob 4000"));
}

TEST_F(CallAgainTest, FollowsTheLanguage) {
  CallAndGiveUp(u"bob 4000");
  alice.state.IsGreek = true;
  ShowCalledHosts(alice.state, alice.fake.platform);
  EXPECT_EQ(alice.fake.window.mnuCommCallAgain.last, u"Διαγραφή της λίστας");
}

}  // namespace
}  // namespace verlume
