// Two whole programs that talk in private, and what their locks say.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_copy.h"
#include "support/text_matchers.h"

namespace verlume {
namespace {

using fake::ProgramCopy;

class PrivateConversationTest : public testing::Test {
 protected:
  void Connect() {
    bob.Enter(u"/WAIT 4000");
    bob.platform.dialogs.answers = {Answer::Yes};
    ann.Enter(u"/CALL bob 4000");
    network.RunUntilIdle();
  }
  void Close() {
    ann.Enter(u"/CLOSE");
    network.RunUntilIdle();
  }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
  ProgramCopy bob{network, u"Bob"};
};

TEST_F(PrivateConversationTest, TwoProgramsTalkInPrivateWithoutAnyoneDoingAnything) {
  Connect();
  ann.Enter(u"你好");
  network.RunUntilIdle();
  for (const ProgramCopy* side : {&ann, &bob}) {
    EXPECT_TRUE(side->program.State().IsConnected);
    EXPECT_EQ(side->Lock(), u"Private, first time with this key");
    EXPECT_EQ(side->platform.window.lblLock.picture, LockPicture::Closed);
    EXPECT_EQ(side->Dialogue(), u"<Ann>你好");
  }
  EXPECT_EQ(ann.Privacy().State(), Privacy::Private);
}

TEST_F(PrivateConversationTest, ThePaneSaysWhetherTheOtherSideMeantTheEnd) {
  const auto lastRule = [](const ProgramCopy& side) {
    return side.platform.window.rtbData.rules.back()();
  };
  Connect();
  Close();
  EXPECT_EQ(lastRule(bob), u"The other side has ended the conversation, 09:05:30");
  Connect();
  ann.platform.socket.Break();
  network.RunUntilIdle();
  EXPECT_EQ(lastRule(ann), u"Connection lost, 09:05:30");
  EXPECT_EQ(lastRule(bob), u"Connection lost, 09:05:30");
}

TEST_F(PrivateConversationTest, TheSecondTimeTheKeyIsKnown) {
  Connect();
  Close();
  EXPECT_EQ(ann.Lock(), u"");
  EXPECT_EQ(bob.Lock(), u"");
  ann.platform.clock.now = {2026, 11, 22, 9, 0, 0};
  Connect();
  EXPECT_EQ(ann.Lock(), u"Private, known since 7 March 2026");
  EXPECT_FALSE(ann.Bar().fraKey.visible);
}

TEST_F(PrivateConversationTest, BothWriteDownWhomTheyHaveMet) {
  Connect();
  EXPECT_NE(ann.Peers().find(u"Name=\"Bob\"\r\nAddress=\"bob 4000\""), std::u16string::npos);
  EXPECT_NE(bob.Peers().find(u"Name=\"Ann\"\r\nAddress=\"192.0.2.1\""), std::u16string::npos);
}

TEST_F(PrivateConversationTest, ALineIsReadByPeopleAndLogsAsInClear) {
  Connect();
  ann.Enter(u"hello");
  ann.Enter(u"/ME waves");
  network.RunUntilIdle();
  EXPECT_EQ(bob.Dialogue(), u"<Ann>hello\n Ann waves");
  EXPECT_EQ(ann.platform.window.lblBytesSent.tag, bob.platform.window.lblBytesReceived.tag);
  EXPECT_NE(bob.platform.files.ReadText(u"/logs/Ann.txt").find(u"<Ann>hello"),
            std::u16string::npos);
}

TEST_F(PrivateConversationTest, WhileTheKeysAreProvedTheLockSaysSoAndNobodyIsConnected) {
  ann.Privacy().provesKeys = false;
  Connect();
  for (const ProgramCopy* side : {&ann, &bob}) {
    EXPECT_EQ(side->Lock(), u"Becoming private...");
    EXPECT_FALSE(side->program.State().IsConnected);
    EXPECT_EQ(side->platform.window.lblRemoteNickname.caption, u"");
  }
  for (int second = 0; second < 60; ++second) bob.platform.window.tmrTimer.Tick();
  EXPECT_EQ(bob.platform.socket.State(), SocketState::Connected) << "the connection itself watches";
  ann.Privacy().ProveKeys();
  network.RunUntilIdle();
  EXPECT_TRUE(ann.program.State().IsConnected);
  EXPECT_TRUE(bob.program.State().IsConnected);
}

TEST_F(PrivateConversationTest, WithAProgramThatCannotItIsInClearAndTheLockSaysWhy) {
  bob.platform.window.mnuPrivateNever.Click();
  Connect();
  EXPECT_TRUE(ann.program.State().IsConnected);
  EXPECT_EQ(ann.Lock(), u"Not private: the other program cannot");
  EXPECT_EQ(ann.platform.window.lblLock.picture, LockPicture::Open);
  EXPECT_FALSE(ann.platform.files.IsFile(u"/verlume/Verlume.peers")) << "nobody can be known";
}

TEST_F(PrivateConversationTest, TheLockFollowsTheLanguage) {
  Connect();
  ann.platform.window.mnuToolsLanguageGreek.Click();
  EXPECT_EQ(ann.Lock(), u"Ιδιωτική, πρώτη φορά με αυτό το κλειδί");
}

TEST_F(PrivateConversationTest, ANicknameOfAnyScriptTravelsWholeAndIsNotAskedAbout) {
  Connect();
  ann.Enter(u"/NICK 你好");
  network.RunUntilIdle();
  EXPECT_EQ(bob.platform.window.lblRemoteNickname.caption, u"你好");
  EXPECT_EQ(ann.Privacy().ownName, u"你好") << "told in private next time";
}

struct PrivacyFailureCase {
  PrivacyFailure failure;
  std::u16string_view reason;
  std::u16string_view greek;
};

TEST_F(PrivateConversationTest, AFailureIsToldInBothLanguages) {
  const PrivacyFailureCase cases[] = {
      {PrivacyFailure::Broken, u"The private connection was disturbed", u"διαταράχθηκε"},
      {PrivacyFailure::Late, u"did not come about in time", u"δεν ολοκληρώθηκε εγκαίρως"},
      {PrivacyFailure::OtherKey, u"Somebody else answered", u"Απάντησε κάποιος άλλος"},
      {PrivacyFailure::NotOffered, u"cannot talk in private", u"δεν μπορεί να συνομιλεί ιδιωτικά"},
      {PrivacyFailure::NoKey, u"has no key to show", u"δεν έχει κλειδί"},
  };
  for (const auto& [failure, reason, greek] : cases) {
    ann.Privacy().fails = failure;
    Connect();
    EXPECT_EQ(ann.Status(),
              u"Remote computer / port: bob / 4000. A private connection could NOT be "
              u"established.");
    const auto& toolTip = ann.platform.window.lblStatus.toolTip;
    EXPECT_NE(toolTip.find(reason), toolTip.npos);
    ann.platform.window.mnuToolsLanguageGreek.Click();
    EXPECT_NE(toolTip.find(greek), toolTip.npos);
    ann.platform.window.mnuToolsLanguageEnglish.Click();
    EXPECT_EQ(ann.Lock(), u"");
    EXPECT_FALSE(ann.program.State().IsCalling);
    EXPECT_FALSE(bob.program.State().IsWaiting) << "the caller has left";
  }
}

TEST_F(PrivateConversationTest, WhoWasCalledIsToldWhoCouldNot) {
  bob.platform.window.mnuPrivateOnly.Click();
  ann.platform.window.mnuPrivateNever.Click();
  Connect();
  EXPECT_EQ(bob.Status(), u"Remote computer / port: 192.0.2.1 / " +
                              DecimalText(ann.platform.socket.LocalPort()) +
                              u". A private connection could NOT be established.");
  EXPECT_FALSE(ann.program.State().IsConnected);
}

TEST_F(PrivateConversationTest, AFileAboutPeopleThatIsNotWholeIsTold) {
  PeerBook nobody;
  ProgramCopy carol(network, u"Carol", nobody);
  EXPECT_TRUE(carol.platform.dialogs.messages.empty());
  fake::FakePlatform broken(network);
  broken.files.ReplaceText(u"/verlume/Verlume.peers", u"nonsense");
  Program program(broken.platform);
  broken.dialogs.answers = {Answer::Ok};
  program.Start();
  ASSERT_EQ(broken.dialogs.messages.size(), 1u);
  EXPECT_EQ(broken.dialogs.messages[0].title, u"People");
}

}  // namespace
}  // namespace verlume
