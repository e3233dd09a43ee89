// What stops a conversation, and what the user does about it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::ProgramCopy;

KeyFingerprint KeyOf(std::uint8_t number) {
  KeyFingerprint key;
  key.fill(number);
  return key;
}

// Carol is verified, and Bob was called on his port. Neither has the keys of the programs here.
PeerBook BobAndCarol() {
  PeerBook book;
  book.Meet({.key = KeyOf(101), .name = u"Bob", .address = u"bob 4000", .day = {2026, 1, 2}});
  book.Verify(KeyOf(102), u"Carol", {2026, 1, 2});
  return book;
}

class PeerGateTest : public testing::Test {
 protected:
  void Call(ProgramCopy& caller, ProgramCopy& callee, std::u16string_view host = u"bob") {
    callee.Enter(u"/WAIT 4000");
    callee.platform.dialogs.answers = {Answer::Yes};
    caller.Enter(std::u16string(u"/CALL ").append(host).append(u" 4000"));
    network.RunUntilIdle();
  }
  void HangUpAll() {
    for (ProgramCopy* side : {&ann, &bob}) {
      if (side->program.State().IsConnected) side->Enter(u"/CLOSE");
      if (side->program.State().IsCalling || side->program.State().IsWaiting) {
        side->Enter(u"/CANCEL");
      }
      network.RunUntilIdle();
    }
  }
  void GoOn(ProgramCopy& side) {
    side.platform.window.keyBar.cmdKeyGoOn.Click();
    network.RunUntilIdle();
  }
  void HangUp(ProgramCopy& side) {
    side.platform.window.keyBar.cmdKeyHangUp.Click();
    network.RunUntilIdle();
  }
  static bool IsStopped(const ProgramCopy& side) { return side.Bar().fraKey.visible; }
  static bool AreTalking(const ProgramCopy& one, const ProgramCopy& other) {
    return one.program.State().IsConnected && other.program.State().IsConnected;
  }
  static std::u16string Pane(const ProgramCopy& side) {
    return side.platform.window.rtbCommands.Text();
  }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann", BobAndCarol()};
  ProgramCopy bob{network, u"Bob"};
};

TEST_F(PeerGateTest, AnotherKeyWhereSomebodyWasCalledStopsBeforeAnythingIsShownOrSent) {
  Call(ann, bob, u" BOB");
  EXPECT_TRUE(IsStopped(ann));
  EXPECT_TRUE(ann.Bar().lblKey.caption.starts_with(u"Bob answered here before, with another key."));
  EXPECT_EQ(ann.Bar().fraKey.accessibleName, ann.Bar().lblKey.caption);
  EXPECT_EQ(ann.Bar().cmdKeyGoOn.caption, u"Go on with this key");
  EXPECT_FALSE(ann.program.State().IsConnected);
  EXPECT_FALSE(bob.program.State().IsConnected);
  EXPECT_EQ(ann.platform.window.lblRemoteNickname.caption, u"");
  EXPECT_TRUE(ann.platform.socket.sent.empty());
  EXPECT_EQ(ann.Peers().find(u"Name=\"Bob\"\r\nAddress=\"bob 4000\""),
            ann.Peers().rfind(u"Name=\"Bob\"\r\nAddress=\"bob 4000\""))
      << "nobody else is remembered yet";
  EXPECT_EQ(ann.platform.window.window.timesFlagged, 1);
}

TEST_F(PeerGateTest, GoingOnRemembersTheKey) {
  Call(ann, bob);
  GoOn(ann);
  EXPECT_FALSE(IsStopped(ann));
  EXPECT_TRUE(AreTalking(ann, bob));
  EXPECT_EQ(ann.Lock(), u"Private, first time with this key. Another Bob is known");
  HangUpAll();
  Call(ann, bob);
  EXPECT_FALSE(IsStopped(ann));
  EXPECT_TRUE(AreTalking(ann, bob));
}

TEST_F(PeerGateTest, HangingUpRemembersNothing) {
  const std::u16string before = ann.Peers();
  Call(ann, bob);
  ann.platform.window.rtbCommands.Type(u"half typed");
  HangUp(ann);
  EXPECT_FALSE(IsStopped(ann));
  EXPECT_EQ(ann.Status(), u"Remote computer IP address / port: 192.0.2.1 / 4000. Disconnected.");
  EXPECT_FALSE(ann.program.State().IsCalling);
  EXPECT_FALSE(bob.program.State().IsWaiting);
  EXPECT_EQ(Pane(ann), u"half typed");
  EXPECT_EQ(ann.Peers(), before);
  EXPECT_EQ(ann.Lock(), u"");
  ann.platform.window.rtbCommands.SetText(u"");
  Call(ann, bob);
  EXPECT_TRUE(IsStopped(ann));
}

TEST_F(PeerGateTest, TypingAnswersNothingAndLinesStayInThePane) {
  Call(ann, bob);
  ann.Enter(u"hello");
  EXPECT_TRUE(IsStopped(ann));
  EXPECT_EQ(Pane(ann), u"hello");
  EXPECT_EQ(ann.Dialogue(), u"");
  EXPECT_TRUE(ann.platform.socket.sent.empty());
  ann.platform.window.rtbCommands.SetText(u"");
  ann.Enter(u"/ME waves");
  EXPECT_EQ(Pane(ann), u"/ME waves");
  GoOn(ann);
  EXPECT_EQ(Pane(ann), u"/ME waves") << "not sent by itself";
  ann.platform.window.cmdSend.Click();
  network.RunUntilIdle();
  EXPECT_EQ(bob.Dialogue(), u" Ann waves");
}

TEST_F(PeerGateTest, CommandsStillWork) {
  Call(ann, bob);
  ann.Enter(u"/NODATE");
  EXPECT_EQ(Pane(ann), u"");
  ann.Enter(u"/CANCEL");
  EXPECT_FALSE(IsStopped(ann));
  EXPECT_FALSE(ann.program.State().IsCalling);
  ann.Enter(u"to myself");
  EXPECT_EQ(ann.Dialogue(), u"<Ann>to myself");
}

TEST_F(PeerGateTest, TheOtherSideWaitsAsLongAsTheUserReads) {
  Call(ann, bob);
  for (int second = 0; second < 120; ++second) {
    ann.platform.window.tmrTimer.Tick();
    bob.platform.window.tmrTimer.Tick();
  }
  EXPECT_TRUE(IsStopped(ann));
  GoOn(ann);
  EXPECT_TRUE(AreTalking(ann, bob));
}

TEST_F(PeerGateTest, WhenTheOtherSideLeavesTheBarGoes) {
  Call(ann, bob);
  bob.Enter(u"/CANCEL");
  network.RunUntilIdle();
  EXPECT_FALSE(IsStopped(ann));
  EXPECT_FALSE(ann.program.State().IsCalling);
  GoOn(ann);
  EXPECT_FALSE(ann.program.State().IsConnected);
}

TEST_F(PeerGateTest, TheBarFollowsTheLanguage) {
  Call(ann, bob);
  ann.platform.window.mnuToolsLanguageGreek.Click();
  EXPECT_TRUE(ann.Bar().lblKey.caption.starts_with(u"Εδώ απαντούσε ως τώρα: Bob"));
  EXPECT_EQ(ann.Bar().cmdKeyGoOn.caption, u"Συνέχεια με αυτό το κλειδί");
}

TEST_F(PeerGateTest, ACallerWithTheNameOfAVerifiedPersonStopsTheCallee) {
  bob.Enter(u"/NICK Carol");
  Call(bob, ann, u"ann");
  EXPECT_TRUE(IsStopped(ann));
  EXPECT_TRUE(ann.Bar().lblKey.caption.starts_with(u"The other side says it is Carol, but"));
  EXPECT_FALSE(ann.program.State().IsConnected);
  bob.Enter(u"early");
  network.RunUntilIdle();
  EXPECT_EQ(ann.Dialogue(), u"");
  GoOn(ann);
  EXPECT_TRUE(AreTalking(ann, bob));
  EXPECT_EQ(ann.Dialogue(), u"<Carol>early");
  HangUpAll();
  Call(bob, ann, u"ann");
  EXPECT_FALSE(IsStopped(ann)) << "this key may have the name now";
  EXPECT_EQ(ann.Lock(), u"Private, known since 7 March 2026. Another Carol is known");
}

TEST_F(PeerGateTest, WhatIsAboutTheNameIsAskedAfterWhatIsAboutThePlace) {
  bob.Enter(u"/NICK Carol");
  Call(ann, bob);
  EXPECT_TRUE(ann.Bar().lblKey.caption.starts_with(u"Bob answered here before"));
  GoOn(ann);
  ASSERT_TRUE(IsStopped(ann));
  EXPECT_TRUE(ann.Bar().lblKey.caption.starts_with(u"The other side says it is Carol, but"));
  EXPECT_FALSE(ann.program.State().IsConnected);
  GoOn(ann);
  EXPECT_TRUE(AreTalking(ann, bob));
}

TEST_F(PeerGateTest, ANameThatComesOnlyWithTheHandshakeStopsThere) {
  bob.Enter(u"/NICK Carol");
  bob.Privacy().SetOwnName(u"Bob");  // what it says before it is let in
  Call(ann, bob, u"elsewhere");
  EXPECT_TRUE(IsStopped(ann));
  EXPECT_FALSE(ann.program.State().IsConnected);
  EXPECT_TRUE(ann.platform.socket.sent.empty()) << "no answer yet";
  GoOn(ann);
  EXPECT_TRUE(AreTalking(ann, bob));
  EXPECT_FALSE(ann.platform.socket.ArrivalsPaused());
  bob.Enter(u"hello");
  network.RunUntilIdle();
  EXPECT_EQ(ann.Dialogue(), u"<Carol>hello");
}

TEST_F(PeerGateTest, TheNameOfTheHandshakeIsRememberedButOfNoLaterOne) {
  bob.Enter(u"/NICK Dora");
  bob.Privacy().SetOwnName(u"Robert");
  Call(ann, bob, u"elsewhere");
  EXPECT_NE(ann.Peers().find(u"Name=\"Dora\"\r\nName=\"Robert\""), std::u16string::npos);
  const std::u16string& marker = ann.program.State().ProtocolMarker;
  ann.platform.socket.Receive(marker + u"SEve" + u'\0');
  EXPECT_EQ(ann.platform.window.lblRemoteNickname.caption, u"Eve");
  EXPECT_EQ(ann.Peers().find(u"Eve"), std::u16string::npos) << "a peer could send any number";
}

TEST_F(PeerGateTest, HangingUpAtTheHandshakeLeavesNothingBehind) {
  bob.Enter(u"/NICK Carol");
  bob.Privacy().SetOwnName(u"Bob");
  Call(ann, bob, u"elsewhere");
  HangUp(ann);
  EXPECT_FALSE(ann.platform.socket.ArrivalsPaused());
  bob.Enter(u"/NICK Dora");
  Call(ann, bob, u"elsewhere");
  EXPECT_TRUE(AreTalking(ann, bob));
  EXPECT_EQ(ann.platform.window.lblRemoteNickname.caption, u"Dora");
}

TEST_F(PeerGateTest, ANicknameChangedMeanwhileIsToldAfterwards) {
  bob.Enter(u"/NICK Carol");
  Call(bob, ann, u"ann");
  ASSERT_TRUE(IsStopped(ann));
  ann.Enter(u"/NICK Anna");
  GoOn(ann);
  EXPECT_EQ(bob.platform.window.lblRemoteNickname.caption, u"Anna");
}

TEST_F(PeerGateTest, ANicknameDuringTheConversationIsSaidByTheLockAlone) {
  Call(ann, bob, u"elsewhere");
  bob.Enter(u"/NICK Carol");
  network.RunUntilIdle();
  EXPECT_FALSE(IsStopped(ann));
  EXPECT_EQ(ann.Lock(), u"Private, first time with this key. Another Carol is known");
  EXPECT_EQ(ann.Peers().find(u"Name=\"Carol\""), std::u16string::npos) << "it claims no name";
}

TEST_F(PeerGateTest, WhoWasPrivateAndComesInClearStops) {
  bob.platform.window.mnuPrivateNever.Click();
  Call(ann, bob);
  EXPECT_TRUE(IsStopped(ann));
  EXPECT_TRUE(ann.Bar().lblKey.caption.starts_with(u"Bob has talked to you in private here;"));
  EXPECT_EQ(ann.Bar().cmdKeyGoOn.caption, u"Go on, not private");
  EXPECT_EQ(ann.platform.window.lblLock.picture, LockPicture::Warning);
  GoOn(ann);
  EXPECT_TRUE(AreTalking(ann, bob)) << "the name says nothing new";
  EXPECT_EQ(ann.Lock(), u"Not private: the other program cannot. Another Bob is known");
  HangUpAll();
  Call(ann, bob);
  EXPECT_TRUE(IsStopped(ann)) << "in clear nothing proves that it is the same";
}

TEST_F(PeerGateTest, ANameThatIsNotOfThePlaceIsAskedInClearToo) {
  bob.platform.window.mnuPrivateNever.Click();
  bob.Enter(u"/NICK Carol");
  Call(ann, bob);
  GoOn(ann);
  ASSERT_TRUE(IsStopped(ann));
  EXPECT_TRUE(ann.Bar().lblKey.caption.starts_with(u"The other side says it is Carol, with whom"));
  GoOn(ann);
  EXPECT_TRUE(AreTalking(ann, bob));
}

TEST_F(PeerGateTest, ACallerInClearWithAKnownNameStopsAndItsLinesWait) {
  bob.platform.window.mnuPrivateNever.Click();
  Call(bob, ann, u"ann");
  EXPECT_TRUE(IsStopped(ann));
  bob.Enter(u"early");
  network.RunUntilIdle();
  for (int second = 0; second < 60; ++second) ann.platform.window.tmrTimer.Tick();
  EXPECT_EQ(ann.Dialogue(), u"");
  EXPECT_TRUE(IsStopped(ann)) << "it has spoken: it is not silent";
  GoOn(ann);
  EXPECT_EQ(ann.Dialogue(), u"<Bob>early");
}

TEST_F(PeerGateTest, WhoNeverTalksInPrivateIsNeverStopped) {
  ann.platform.window.mnuPrivateNever.Click();
  Call(ann, bob);
  EXPECT_FALSE(IsStopped(ann));
  EXPECT_TRUE(AreTalking(ann, bob));
  EXPECT_EQ(ann.Lock(), u"Not private: you have turned private conversations off");
}

}  // namespace
}  // namespace verlume
