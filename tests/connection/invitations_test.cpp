#include "people/invitation.h"

#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::ProgramCopy;

class InvitationsTest : public testing::Test {
 protected:
  // Bob waits, and his invitation is on his clipboard.
  std::u16string Invite() {
    bob.Enter(u"/WAIT 4000");
    bob.platform.dialogs.answers = {Answer::Ok};
    bob.platform.window.mnuCommInvite.Click();
    bob.platform.dialogs.answers = {Answer::Yes};
    return bob.platform.clipboard.text;
  }
  void Enter(std::u16string_view line) {
    ann.Enter(std::u16string(line));
    network.RunUntilIdle();
  }
  bool AreTalking() const {
    return ann.program.State().IsConnected && bob.program.State().IsConnected;
  }
  std::u16string InvitationWith(const KeyFingerprint& key) const {
    return InvitationText({u"192.0.2.1", 4000, key});
  }
  const std::u16string& LastMessage() const { return ann.platform.dialogs.messages.back().text; }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
  ProgramCopy bob{network, u"Bob"};
};

TEST_F(InvitationsTest, AnInvitationNamesAddressPortAndKey) {
  const std::u16string text = Invite();
  EXPECT_EQ(text, InvitationWith(bob.Privacy().key));
  EXPECT_NE(bob.platform.dialogs.messages[0].text.find(text), text.npos);
}

TEST_F(InvitationsTest, WhoDoesNotWaitIsToldToWaitFirst) {
  ann.platform.dialogs.answers = {Answer::Ok};
  ann.platform.window.mnuCommInvite.Click();
  EXPECT_EQ(ann.platform.clipboard.text, u"");
  EXPECT_TRUE(LastMessage().starts_with(u"An invitation says where you wait"));
}

TEST_F(InvitationsTest, PastedAndEnteredItCallsAndTheKeyIsInvited) {
  Enter(u"  " + Invite() + u" ");
  EXPECT_TRUE(AreTalking());
  EXPECT_EQ(ann.Lock(), u"Private, by invitation");
  EXPECT_EQ(bob.Lock(), u"Private, first time with this key");
  EXPECT_EQ(ann.platform.window.rtbCommands.Text(), u"");
  EXPECT_EQ(ann.Dialogue(), u"");
  EXPECT_NE(ann.Peers().find(u"Invited=True"), std::u16string::npos);
  EXPECT_EQ(bob.Peers().find(u"Invited=True"), std::u16string::npos);
}

TEST_F(InvitationsTest, CallTakesItAsWell) {
  Enter(u"/CALL " + Invite());
  EXPECT_TRUE(AreTalking());
  EXPECT_EQ(ann.Lock(), u"Private, by invitation");
}

TEST_F(InvitationsTest, AnotherKeyEndsTheCall) {
  Invite();
  Enter(InvitationWith(ann.Privacy().key));
  EXPECT_FALSE(ann.program.State().IsConnected);
  EXPECT_EQ(ann.Status(),
            u"Remote computer / port: 192.0.2.1 / 4000. A private connection could NOT be "
            u"established.");
  EXPECT_FALSE(ann.platform.files.IsFile(u"/verlume/Verlume.peers"));
}

TEST_F(InvitationsTest, AProgramThatCannotBePrivateIsHungUpOnBeforeAnyAnswer) {
  const std::u16string text = Invite();
  bob.platform.window.mnuPrivateNever.Click();
  Enter(text);
  EXPECT_FALSE(ann.program.State().IsConnected);
  EXPECT_TRUE(ann.platform.socket.sent.empty());
}

TEST_F(InvitationsTest, TheNextCallExpectsNobody) {
  Invite();
  Enter(InvitationWith(ann.Privacy().key));
  bob.Enter(u"/WAIT 4000");
  bob.platform.dialogs.answers = {Answer::Yes};
  Enter(u"/CALL bob 4000");
  EXPECT_TRUE(AreTalking());
  EXPECT_EQ(ann.Privacy().expectedKey, std::nullopt);
  EXPECT_EQ(ann.Lock(), u"Private, first time with this key");
}

TEST_F(InvitationsTest, AWrongOneIsToldAndCallsNobody) {
  for (const std::u16string& line :
       {std::u16string(u"verlume://bob:4000"), std::u16string(u"/CALL verlume://bob:4000/?key=x"),
        InvitationWith({}).append(u"x")}) {
    ann.platform.dialogs.answers = {Answer::Ok};
    Enter(line);
    EXPECT_FALSE(ann.program.State().IsCalling);
    EXPECT_TRUE(LastMessage().starts_with(u"This is not a whole invitation."));
    EXPECT_EQ(ann.Dialogue(), u"") << "it is not said to anybody";
  }
}

TEST_F(InvitationsTest, InAConversationItIsALineLikeAnyOther) {
  Enter(Invite());
  ASSERT_TRUE(AreTalking());
  const std::u16string forwarded = InvitationWith({});
  Enter(forwarded);
  EXPECT_EQ(bob.Dialogue(), u"<Ann>" + forwarded);
}

TEST_F(InvitationsTest, WithoutPrivateConversationsNobodyInvitesOrIsInvited) {
  const std::u16string text = Invite();
  ann.platform.window.mnuPrivateNever.Click();
  ann.platform.dialogs.answers = {Answer::Ok, Answer::Ok};
  Enter(text);
  EXPECT_FALSE(ann.program.State().IsCalling);
  EXPECT_TRUE(LastMessage().starts_with(u"An invitation needs a private conversation"));
  ann.platform.window.mnuCommInvite.Click();
  EXPECT_EQ(ann.platform.clipboard.text, u"");
}

class InvitationFromOutsideTest : public InvitationsTest {
 protected:
  void StartWith(std::u16string_view invitation, Answer answer) {
    carol.files.MakeFolder(u"/macros");
    carol.files.ReplaceText(u"/verlume/Verlume.ini",
                            u"[General]\r\nMacrosfolder=/macros/\r\nNickname=Carol\r\n");
    program.Start({StartTask::Kind::OpenInvitation, std::u16string(invitation), 0});
    EXPECT_TRUE(carol.dialogs.messages.empty()) << "not before the window is there";
    carol.dialogs.answers = {answer};
    carol.window.freeSizer1.onPostLayout();
    network.RunUntilIdle();
  }

  fake::FakePlatform carol{network};
  Program program{carol.platform};
};

TEST_F(InvitationFromOutsideTest, AsksBeforeItCalls) {
  StartWith(Invite(), Answer::Yes);
  ASSERT_EQ(carol.dialogs.messages.size(), 1u);
  EXPECT_TRUE(carol.dialogs.messages[0].text.starts_with(
      u"An invitation was opened. Do you want to call the computer 192.0.2.1 on port 4000?"));
  EXPECT_TRUE(carol.dialogs.messages[0].unexpected) << "what is being typed does not answer";
  EXPECT_EQ(carol.dialogs.messages[0].defaultAnswer, Answer::No);
  EXPECT_TRUE(program.State().IsConnected);
  EXPECT_EQ(carol.window.lblLock.caption, u"Private, by invitation");
}

TEST_F(InvitationFromOutsideTest, NoCallsNobody) {
  StartWith(Invite(), Answer::No);
  EXPECT_FALSE(program.State().IsCalling || program.State().IsConnected);
}

TEST_F(InvitationFromOutsideTest, WhatIsNoneIsIgnored) {
  StartWith(u"--fullscreen", Answer::Ok);
  EXPECT_TRUE(carol.dialogs.messages.empty());
}

TEST_F(InvitationFromOutsideTest, AWrongOneIsTold) {
  StartWith(u"verlume://bob:4000", Answer::Ok);
  ASSERT_EQ(carol.dialogs.messages.size(), 1u);
  EXPECT_TRUE(carol.dialogs.messages[0].text.starts_with(u"This is not a whole invitation."));
}

}  // namespace
}  // namespace verlume
