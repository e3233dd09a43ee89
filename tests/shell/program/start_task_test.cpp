#include <gtest/gtest.h>

#include "people/invitation.h"
#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::ProgramCopy;
using Kind = StartTask::Kind;

class StartTaskTest : public testing::Test {
 protected:
  StartTaskTest() {
    carol.files.MakeFolder(u"/macros");
    carol.files.ReplaceText(u"/verlume/Verlume.ini",
                            u"[General]\r\nMacrosfolder=/macros/\r\nNickname=Carol\r\n");
  }
  void StartWith(const StartTask& task) {
    program.Start(task);
    EXPECT_FALSE(program.State().IsWaiting || program.State().IsCalling)
        << "not before the window is there";
    carol.window.freeSizer1.onPostLayout();
    network.RunUntilIdle();
  }

  fake::FakeNetwork network;
  ProgramCopy bob{network, u"Bob"};
  fake::FakePlatform carol{network};
  Program program{carol.platform};
};

TEST_F(StartTaskTest, NothingIsDoneUnasked) {
  StartWith({});
  EXPECT_FALSE(program.State().IsWaiting || program.State().IsCalling);
}

TEST_F(StartTaskTest, TheProgramWaitsOnThePort) {
  StartWith({Kind::Wait, u"", 4000});
  EXPECT_TRUE(program.State().IsWaiting);
  EXPECT_EQ(program.State().LocalPort, 4000);
}

TEST_F(StartTaskTest, TheProgramWaitsOnAFreePort) {
  StartWith({Kind::Wait, u"", 0});
  EXPECT_TRUE(program.State().IsWaiting);
  EXPECT_GT(program.State().LocalPort, 0);
}

TEST_F(StartTaskTest, ACallOfTheUsersOwnIsNotAskedAbout) {
  bob.Enter(u"/WAIT 4000");
  bob.platform.dialogs.answers = {Answer::Yes};
  StartWith({Kind::Call, u"bob", 4000});
  EXPECT_TRUE(carol.dialogs.messages.empty());
  EXPECT_TRUE(program.State().IsConnected);
}

TEST_F(StartTaskTest, TheTaskIsDoneOnce) {
  StartWith({Kind::Wait, u"", 4000});
  carol.window.rtbCommands.Type(u"/CANCEL\r");
  carol.window.freeSizer1.onPostLayout();
  EXPECT_FALSE(program.State().IsWaiting);
}

TEST_F(StartTaskTest, AnotherStartsTaskIsDoneAtOnceAndKeepsWhatIsHalfTyped) {
  StartWith({});
  carol.window.rtbCommands.Type(u"half a line");
  program.Do({Kind::Wait, u"", 4001});
  EXPECT_TRUE(program.State().IsWaiting);
  EXPECT_EQ(carol.window.rtbCommands.Text(), u"half a line");
}

TEST_F(StartTaskTest, AnotherStartsTaskAsksBeforeItEndsAWait) {
  StartWith({Kind::Wait, u"", 4000});
  carol.dialogs.answers = {Answer::No};
  program.Do({Kind::Call, u"bob", 4000});
  EXPECT_EQ(carol.dialogs.messages.size(), 1u);
  EXPECT_TRUE(program.State().IsWaiting);
  EXPECT_FALSE(program.State().IsCalling);
}

TEST_F(StartTaskTest, AnotherStartsInvitationAsks) {
  StartWith({});
  carol.dialogs.answers = {Answer::No};
  program.Do({Kind::OpenInvitation, InvitationText({u"192.0.2.1", 4000, {}}), 0});
  ASSERT_EQ(carol.dialogs.messages.size(), 1u);
  EXPECT_TRUE(carol.dialogs.messages[0].text.starts_with(u"An invitation was opened."));
  EXPECT_FALSE(program.State().IsCalling);
}

TEST_F(StartTaskTest, NothingIsDoneAfterTheEnd) {
  StartWith({});
  carol.application.ended = true;
  program.Do({Kind::Wait, u"", 4000});
  EXPECT_FALSE(program.State().IsWaiting);
}

}  // namespace
}  // namespace verlume
