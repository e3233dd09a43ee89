// Callers and peers that come and go at bad moments.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/callers_fixture.h"

namespace verlume {

template <class World>
class CallersContract : public CallersFixture<World> {};

TYPED_TEST_SUITE_P(CallersContract);

TYPED_TEST_P(CallersContract, OneThatSaysNothingCanBeCancelled) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->Enter(u"/CANCEL");
  EXPECT_TRUE(this->StatusEndsIn(u"You stopped waiting for an incoming call."));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatSaysNothingGivesWayToAnotherWait) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->EnterAndAgree(u"/WAIT");
  EXPECT_EQ(this->State(), ConnectionState::Waiting);
  EXPECT_EQ(this->socket.State(), SocketState::Listening);
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_EQ(this->State(), ConnectionState::Waiting) << "of the new wait nothing has ended";
  this->Enter(u"/CANCEL");
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatSaysNothingGivesWayToACall) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->other.socket.SetLocalPort(0);
  this->other.socket.Listen();
  this->EnterAndAgree(this->CallTo(this->other.socket.LocalPort()));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  EXPECT_TRUE(this->world.Wait([&] { return this->other.requests.size() == 1; }));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  this->Enter(u"/CANCEL");
  this->other.socket.Close();
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatSaysNothingIsLetGo) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->Tick(kLongestSilence - 1);
  EXPECT_EQ(this->State(), ConnectionState::Waiting);
  EXPECT_EQ(this->socket.State(), SocketState::Connected);
  this->Tick(1);
  EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatSaysSomethingMayStay) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->Tick(kLongestSilence - 1);
  this->peer.socket.SendData(u"it is me", TextKind::Line);
  ASSERT_TRUE(this->world.Wait([&] { return this->fake.window.rtbData.TextLength() > 0; }));
  this->Tick(2 * kLongestSilence);
  EXPECT_EQ(this->State(), ConnectionState::Waiting);
  EXPECT_EQ(this->socket.State(), SocketState::Connected);
  EXPECT_EQ(this->peer.closes, 0u);
}

TYPED_TEST_P(CallersContract, OneWhoseWordsWaitIsNotSilent) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->socket.PauseArrivals();
  this->peer.socket.SendData(u"it is me", TextKind::Line);
  this->Tick(2 * kLongestSilence);
  EXPECT_EQ(this->State(), ConnectionState::Waiting);
  this->socket.ResumeArrivals();
  EXPECT_TRUE(this->world.Wait([&] { return this->fake.window.rtbData.TextLength() > 0; }));
}

TYPED_TEST_P(CallersContract, OneThatConfirmedMayStaySilent) {
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  this->Tick(2 * kLongestSilence);
  EXPECT_EQ(this->State(), ConnectionState::Connected);
  EXPECT_EQ(this->peer.closes, 0u);
}

TYPED_TEST_P(CallersContract, EachHasTheWholeTimeToSaySomething) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->Tick(kLongestSilence - 1);
  this->Enter(u"/CANCEL");
  ASSERT_TRUE(this->WaitForClose(this->peer));
  this->peer.connects = 0;
  this->peer.texts.clear();
  this->Listen();
  this->Tick(2 * kLongestSilence);
  EXPECT_EQ(this->State(), ConnectionState::Waiting) << "a wait without a caller has no end";
  this->Enter(u"/CANCEL");
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->Tick(kLongestSilence - 1);
  EXPECT_EQ(this->socket.State(), SocketState::Connected);
  this->Tick(1);
  EXPECT_EQ(this->State(), ConnectionState::Idle);
}

TYPED_TEST_P(CallersContract, BytesBeforeTheHandshakeMakeNoConversation) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(
      Answer::Yes, [this] { this->peer.socket.SendData(u"early", TextKind::Line); }));
  ASSERT_TRUE(this->world.Wait([&] { return this->fake.window.rtbData.Text() == u"<>early"; }));
  this->peer.socket.SendData(std::u16string(100, u'\0'), TextKind::Line);
  ASSERT_TRUE(this->world.Wait([&] { return this->fake.window.lblBytesReceived.tag == u"105"; }));
  EXPECT_EQ(this->State(), ConnectionState::Waiting);
  EXPECT_FALSE(this->program.State().LogOpen);
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
  this->Enter(u"/CANCEL");
  EXPECT_TRUE(this->WaitForClose(this->peer));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, BytesBeforeTheHandshakeAreNotTheFormerPeers) {
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  this->peer.socket.Close();
  ASSERT_TRUE(this->WaitForState(ConnectionState::Idle));
  const std::u16string log = this->fake.files.ReadText(u"/logs/Alice.txt");
  this->peer.connects = 0;
  this->peer.texts.clear();
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(
      Answer::Yes, [this] { this->peer.socket.SendData(u"it is me", TextKind::Line); }));
  EXPECT_TRUE(this->world.Wait([&] { return this->fake.window.rtbData.Text() == u"<>it is me"; }));
  EXPECT_EQ(this->fake.files.ReadText(u"/logs/Alice.txt"), log);
  EXPECT_EQ(this->fake.window.lblRemoteNickname.caption, u"Alice") << "of the last conversation";
}

TYPED_TEST_P(CallersContract, BytesBeforeTheHandshakeOfACallAreNotTheFormerPeersEither) {
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  this->peer.socket.Close();
  ASSERT_TRUE(this->WaitForState(ConnectionState::Idle));
  this->other.answer = [this](std::int64_t id) {
    this->other.socket.Close();
    this->other.socket.Accept(id);
    this->other.socket.SendData(u"it is me", TextKind::Line);
  };
  this->other.socket.SetLocalPort(0);
  this->other.socket.Listen();
  this->Enter(this->CallTo(this->other.socket.LocalPort()));
  EXPECT_TRUE(this->world.Wait([&] { return this->fake.window.rtbData.Text() == u"<>it is me"; }));
}

TYPED_TEST_P(CallersContract, AFloodBeforeTheHandshakeCanBeCancelled) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] {
    for (int line = 0; line < 1000; ++line) {
      this->peer.socket.SendData(u"flood ", TextKind::Line);
    }
  }));
  ASSERT_TRUE(this->world.Wait([&] { return this->fake.window.rtbData.TextLength() > 0; }));
  this->Enter(u"/CANCEL");
  EXPECT_TRUE(this->StatusEndsIn(u"You stopped waiting for an incoming call."));
  const std::u16string shown = this->fake.window.rtbData.Text();
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_EQ(this->fake.window.rtbData.Text(), shown);
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, WhatARejectedOneHasSaidIsNotShown) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(
      Answer::No, [this] { this->peer.socket.SendData(u"early", TextKind::Line); }));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_EQ(this->fake.window.rtbData.Text(), u"");
  EXPECT_EQ(this->fake.window.lblBytesReceived.tag, u"");
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ASecondOneIsNeitherAskedAboutNorConnected) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] {
    this->Call(this->other);
    ASSERT_TRUE(this->world.Wait([&] { return this->other.connects == 1; }));
  }));
  EXPECT_TRUE(this->world.Wait([&] { return this->peer.texts.size() == 1; }));
  EXPECT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
  EXPECT_TRUE(this->other.texts.empty());
  this->peer.socket.Close();
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ASecondOneIsRejectedWithTheFirst) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::No, [this] {
    this->Call(this->other);
    ASSERT_TRUE(this->world.Wait([&] { return this->other.connects == 1; }));
  }));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ASecondOneIsAskedAboutIfTheWaitGoesOn) {
  this->fake.dialogs.setsTick = true;
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::No, [this] {
    this->Call(this->other);
    ASSERT_TRUE(this->world.Wait([&] { return this->other.connects == 1; }));
    this->fake.dialogs.answers.push_back(Answer::Yes);
  }));
  EXPECT_TRUE(this->WaitForClose(this->peer));
  EXPECT_TRUE(this->world.Wait([&] { return this->other.texts.size() == 1; }));
  EXPECT_EQ(this->fake.dialogs.messages.size(), 2u);
  EXPECT_EQ(this->other.closes, 0u);
}

TYPED_TEST_P(CallersContract, OneDuringAConversationIsRefused) {
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  this->Call(this->other);
  EXPECT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->other.connects, 0u);
  this->peer.socket.SendData(u"still here", TextKind::Line);
  EXPECT_TRUE(
      this->world.Wait([&] { return this->fake.window.rtbData.Text() == u"<Alice>still here"; }));
  EXPECT_EQ(this->fake.dialogs.messages.size(), 1u);
}

TYPED_TEST_P(CallersContract, OneThatLeftIsAcceptedInVain) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::Yes, [this] { this->peer.socket.Close(); }));
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatLeftIsRejectedAsWell) {
  ASSERT_NO_FATAL_FAILURE(this->AnswerTheCall(Answer::No, [this] { this->peer.socket.Close(); }));
  EXPECT_TRUE(this->StatusEndsIn(u"You rejected the incoming call."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, OneThatLeavesInsteadOfConfirmingMakesNoConversation) {
  ASSERT_NO_FATAL_FAILURE(this->Accept());
  this->peer.socket.Close();
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, AnAnswerToAPeerThatIsGoneEndsTheConversation) {
  this->peer.answer = [this](std::int64_t id) {
    this->peer.socket.Close();
    this->peer.socket.Accept(id);
    this->peer.socket.SendData(this->program.State().ProtocolMarker + u"SAlice" + u'\0',
                               TextKind::Signal);
    this->peer.socket.Close();
  };
  this->peer.socket.SetLocalPort(0);
  this->peer.socket.Listen();
  this->Enter(this->CallTo(this->peer.socket.LocalPort()));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"Disconnected."));
  EXPECT_TRUE(this->fake.files.ReadText(u"/logs/Alice.txt").ends_with(u"Disconnected.\r\n"));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, WaitingAndCallingMayAlternateAsFastAsTheyLike) {
  this->peer.answer = [this](std::int64_t) {
    this->peer.socket.Close();
    this->peer.socket.Listen();
  };
  this->peer.socket.SetLocalPort(0);
  this->peer.socket.Listen();
  const std::u16string call = this->CallTo(this->peer.socket.LocalPort());
  this->Listen();
  for (int round = 0; round < 1000; ++round) {
    this->EnterAndAgree(call);
    ASSERT_EQ(this->State(), ConnectionState::Calling);
    if (round % 50 == 0) {
      ASSERT_TRUE(this->WaitForState(ConnectionState::Idle)) << "the call is refused";
      this->Enter(u"/WAIT");
    } else {
      this->EnterAndAgree(u"/WAIT");
    }
    ASSERT_EQ(this->State(), ConnectionState::Waiting);
    ASSERT_EQ(this->socket.State(), SocketState::Listening);
  }
  this->Enter(u"/CANCEL");
  this->peer.socket.Close();
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ACallToItselfIsRefused) {
  this->Listen();
  this->EnterAndAgree(this->CallTo(this->port));
  EXPECT_EQ(this->State(), ConnectionState::Calling);
  EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
  EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, CallsToWhatDoesNotExistComeToNothing) {
  for (const std::u16string& line :
       {std::u16string(u"/CALL nobody.invalid 4000"), this->CallTo(0)}) {
    this->Enter(line);
    EXPECT_EQ(this->State(), ConnectionState::Calling);
    EXPECT_TRUE(this->WaitForState(ConnectionState::Idle));
    EXPECT_TRUE(this->StatusEndsIn(u"A connection could NOT be established."));
  }
  this->fake.dialogs.answers = {Answer::No};
  this->Enter(this->CallTo(65536));
  EXPECT_EQ(this->fake.dialogs.messages.back().title, u"Verlume, 206.");
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, ACallByNameIsCancelledAtOnce) {
  this->Enter(u"/CALL nobody.invalid 4000");
  this->Enter(u"/CANCEL");
  EXPECT_TRUE(this->StatusEndsIn(u"You cancelled the call."));
  this->ExpectUsable();
}

TYPED_TEST_P(CallersContract, TheWindowMayBeClosedDuringACallByName) {
  this->Enter(u"/CALL nobody.invalid 4000");
  this->fake.dialogs.answers = {Answer::Yes};
  this->fake.window.window.Close(UnloadMode::User);
  EXPECT_TRUE(this->fake.application.ended);
  EXPECT_EQ(this->socket.State(), SocketState::Closed);
}

REGISTER_TYPED_TEST_SUITE_P(
    CallersContract, AFloodBeforeTheHandshakeCanBeCancelled, WhatARejectedOneHasSaidIsNotShown,
    OneThatSaysNothingCanBeCancelled, OneThatSaysNothingGivesWayToAnotherWait,
    OneThatSaysNothingGivesWayToACall, OneThatSaysNothingIsLetGo, OneThatSaysSomethingMayStay,
    OneWhoseWordsWaitIsNotSilent, OneThatConfirmedMayStaySilent, EachHasTheWholeTimeToSaySomething,
    BytesBeforeTheHandshakeMakeNoConversation, BytesBeforeTheHandshakeAreNotTheFormerPeers,
    BytesBeforeTheHandshakeOfACallAreNotTheFormerPeersEither,
    ASecondOneIsNeitherAskedAboutNorConnected, ASecondOneIsRejectedWithTheFirst,
    ASecondOneIsAskedAboutIfTheWaitGoesOn, OneDuringAConversationIsRefused,
    OneThatLeftIsAcceptedInVain, OneThatLeftIsRejectedAsWell,
    OneThatLeavesInsteadOfConfirmingMakesNoConversation,
    AnAnswerToAPeerThatIsGoneEndsTheConversation, WaitingAndCallingMayAlternateAsFastAsTheyLike,
    ACallToItselfIsRefused, CallsToWhatDoesNotExistComeToNothing, ACallByNameIsCancelledAtOnce,
    TheWindowMayBeClosedDuringACallByName);

}  // namespace verlume
