// The contract of every Socket, as tests that run on each implementation.
//
// A World makes sockets that can reach each other: `Socket& New()`, `std::u16string Host()` (where
// they listen) and `bool Wait(condition)`, which handles events until the condition is true or a
// time limit has passed.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/run_time_failure.h"
#include "platform/socket.h"
#include "platform/socket_user.h"

namespace verlume {

template <class World>
class SocketContract : public testing::Test {
 protected:
  SocketContract() : callee(world.New()), caller(world.New()), other(world.New()) {}

  void Listen() {
    callee.socket.SetLocalPort(0);
    callee.socket.Listen();
  }
  void Call(SocketUser& user) {
    user.socket.SetRemoteHost(world.Host());
    user.socket.SetRemotePort(callee.socket.LocalPort());
    user.socket.Connect();
  }
  // The call has reached the other side, and the caller knows it.
  void Ring() {
    Listen();
    Call(caller);
    ASSERT_TRUE(world.Wait([&] { return callee.requests.size() == 1 && caller.connects == 1; }));
  }
  void Answer() {
    callee.socket.Close();
    callee.socket.Accept(callee.requests.back());
  }
  void ConnectBoth() {
    Ring();
    Answer();
    ASSERT_TRUE(world.Wait([&] { return callee.socket.State() == SocketState::Connected; }));
  }
  bool WaitForClose(SocketUser& user) {
    return world.Wait([&] { return user.closes > 0; });
  }
  void SendAndClose(const std::vector<std::u16string>& texts) {
    for (const std::u16string& text : texts) caller.socket.SendData(text, TextKind::Line);
    caller.socket.Close();
  }
  // After SendAndClose: the end of the connection arrives behind the texts.
  bool WaitUntilAllHasArrived() {
    const bool hasEnded = world.Wait([&] { return callee.socket.State() == SocketState::Closed; });
    LetEventsThrough();
    return hasEnded;
  }
  void LetEventsThrough() {
    int rounds = 0;
    world.Wait([&] { return ++rounds > 3; });
  }

  World world;
  SocketUser callee;
  SocketUser caller;
  SocketUser other;
};

TYPED_TEST_SUITE_P(SocketContract);

TYPED_TEST_P(SocketContract, StartsClosedWithNobodyAtTheOtherEnd) {
  EXPECT_EQ(this->caller.socket.State(), SocketState::Closed);
  EXPECT_EQ(this->caller.socket.RemoteHostIP(), u"");
  this->caller.socket.SetRemotePort(77);
  EXPECT_EQ(this->caller.socket.RemotePort(), 77);
  EXPECT_EQ(this->caller.socket.GetData(), u"");
  EXPECT_NE(this->caller.socket.LocalIP(), u"");
  EXPECT_NE(this->caller.socket.LocalHostName(), u"");
}

TYPED_TEST_P(SocketContract, ListeningOnPortZeroTellsThePortInUse) {
  this->Listen();
  EXPECT_EQ(this->callee.socket.State(), SocketState::Listening);
  EXPECT_GT(this->callee.socket.LocalPort(), 0);
  // The port that the system would choose is usually higher.
  EXPECT_LE(this->callee.socket.LocalPort(), kGreatestNameablePort);
}

TYPED_TEST_P(SocketContract, ListeningOnATakenPortFails) {
  this->Listen();
  this->other.socket.SetLocalPort(this->callee.socket.LocalPort());
  try {
    this->other.socket.Listen();
    FAIL();
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.number, FailureNumber::AddressInUse);
  }
  EXPECT_EQ(this->other.socket.State(), SocketState::Closed);
  this->callee.socket.Close();
  this->other.socket.Listen();
  EXPECT_EQ(this->other.socket.State(), SocketState::Listening);
}

TYPED_TEST_P(SocketContract, AnAnsweredCallConnectsBothSides) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  EXPECT_EQ(this->callee.socket.State(), SocketState::Listening);
  EXPECT_EQ(this->caller.socket.State(), SocketState::Connected);
  const std::int32_t port = this->callee.socket.LocalPort();
  EXPECT_NE(this->callee.socket.RemoteHostIP(), u"");
  EXPECT_EQ(this->callee.socket.RemotePort(), this->caller.socket.LocalPort());
  this->Answer();
  EXPECT_EQ(this->callee.socket.State(), SocketState::Connected);
  EXPECT_EQ(this->callee.socket.LocalPort(), port);
  EXPECT_NE(this->callee.socket.RemoteHostIP(), u"");
  EXPECT_EQ(this->callee.socket.RemotePort(), this->caller.socket.LocalPort());
  EXPECT_NE(this->caller.socket.RemoteHostIP(), u"");
  EXPECT_EQ(this->caller.socket.RemotePort(), port);
  EXPECT_EQ(this->callee.connects, 0u) << "only the caller is told";
  EXPECT_EQ(this->caller.closes + this->callee.closes, 0u);
}

TYPED_TEST_P(SocketContract, ACallMayBeAnsweredInsideItsEvent) {
  this->callee.answer = [this](std::int64_t id) {
    this->callee.socket.Close();
    this->callee.socket.Accept(id);
    this->callee.socket.SendData(u"welcome", TextKind::Line);
  };
  this->Listen();
  this->Call(this->caller);
  EXPECT_TRUE(this->world.Wait([&] { return this->caller.Received() == u"welcome"; }));
}

TYPED_TEST_P(SocketContract, OperationsRaiseNothingThemselves) {
  this->Listen();
  this->Call(this->caller);
  EXPECT_EQ(this->caller.socket.State(), SocketState::Connecting);
  EXPECT_EQ(this->caller.Events(), 0u);
  ASSERT_TRUE(this->world.Wait(
      [&] { return this->callee.requests.size() == 1 && this->caller.connects == 1; }));
  this->Answer();
  this->caller.socket.SendData(u"hello", TextKind::Line);
  this->caller.socket.Close();
  EXPECT_EQ(this->callee.Events(), 1u);
  EXPECT_EQ(this->caller.Events(), 1u);
}

TYPED_TEST_P(SocketContract, TextsArriveWithTheirLength) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->caller.socket.SendData(u"αβγ", TextKind::Line);
  ASSERT_TRUE(this->world.Wait([&] { return this->callee.texts.size() == 1; }));
  EXPECT_EQ(this->callee.texts[0], u"αβγ");
  EXPECT_EQ(this->callee.totals[0], 3);
  EXPECT_EQ(this->callee.socket.GetData(), u"") << "it has been read";
  this->callee.socket.SendData(u"and back", TextKind::Line);
  EXPECT_TRUE(this->world.Wait([&] { return this->caller.Received() == u"and back"; }));
}

TYPED_TEST_P(SocketContract, CharactersOutsideTheCodePageArriveAsQuestionMarks) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->caller.socket.SendData(u"日α\xD83D\xDE00 \xD800", TextKind::Line);
  EXPECT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"?α? ?"; }));
}

TYPED_TEST_P(SocketContract, NothingIsSentUnlessConnected) {
  EXPECT_FALSE(this->caller.socket.SendData(u"lost", TextKind::Line));
  this->Listen();
  EXPECT_FALSE(this->callee.socket.SendData(u"lost", TextKind::Line));
  this->Call(this->caller);
  EXPECT_FALSE(this->caller.socket.SendData(u"lost", TextKind::Line));
  ASSERT_TRUE(this->world.Wait([&] { return this->callee.requests.size() == 1; }));
  EXPECT_FALSE(this->callee.socket.SendData(u"lost", TextKind::Line));
  this->Answer();
  ASSERT_TRUE(this->world.Wait([&] { return this->caller.connects == 1; }));
  EXPECT_TRUE(this->caller.socket.SendData(u"a", TextKind::Line));
  this->callee.socket.SendData(u"b", TextKind::Line);
  EXPECT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"a"; }));
  EXPECT_TRUE(this->world.Wait([&] { return this->caller.Received() == u"b"; }));
}

TYPED_TEST_P(SocketContract, TextSentBeforeTheAnswerArrivesAfterIt) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->caller.socket.SendData(u"early", TextKind::Line);
  EXPECT_EQ(this->callee.texts.size(), 0u);
  this->Answer();
  EXPECT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"early"; }));
}

TYPED_TEST_P(SocketContract, ARefusedCallCloses) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->callee.socket.Close();
  EXPECT_EQ(this->callee.socket.State(), SocketState::Closed);
  EXPECT_EQ(this->callee.socket.RemoteHostIP(), u"");
  EXPECT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.socket.State(), SocketState::Closed);
  EXPECT_EQ(this->callee.closes, 0u);
}

TYPED_TEST_P(SocketContract, ARefusedCallCanNoLongerBeAnswered) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->callee.socket.Close();
  ASSERT_TRUE(this->WaitForClose(this->caller));
  this->callee.socket.Accept(this->callee.requests[0]);
  EXPECT_EQ(this->callee.closes, 0u);
  EXPECT_TRUE(this->WaitForClose(this->callee));
}

TYPED_TEST_P(SocketContract, ASecondCallerWaitsAndIsRefusedWhenTheListenerCloses) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->Call(this->other);
  ASSERT_TRUE(this->world.Wait([&] { return this->other.connects == 1; }));
  this->Answer();
  EXPECT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->callee.requests.size(), 1u);
  this->caller.socket.SendData(u"still here", TextKind::Line);
  EXPECT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"still here"; }));
  EXPECT_EQ(this->caller.closes, 0u);
}

TYPED_TEST_P(SocketContract, ARejectedCallerIsClosedAndTheNextOneIsAskedAbout) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->Call(this->other);
  ASSERT_TRUE(this->world.Wait([&] { return this->other.connects == 1; }));
  const std::int32_t port = this->callee.socket.LocalPort();
  this->callee.socket.Reject(this->callee.requests.back());
  EXPECT_EQ(this->callee.socket.RemoteHostIP(), u"");
  EXPECT_TRUE(this->WaitForClose(this->caller));
  ASSERT_TRUE(this->world.Wait([&] { return this->callee.requests.size() == 2; }));
  EXPECT_EQ(this->callee.socket.State(), SocketState::Listening);
  EXPECT_EQ(this->callee.socket.LocalPort(), port);
  EXPECT_EQ(this->other.closes, 0u);
  this->Answer();
  this->other.socket.SendData(u"hello", TextKind::Line);
  EXPECT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"hello"; }));
}

TYPED_TEST_P(SocketContract, ARejectedCallerWhoHasLeftMakesRoomForTheNext) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->caller.socket.Close();
  this->LetEventsThrough();
  this->callee.socket.Reject(this->callee.requests.back());
  this->Call(this->other);
  EXPECT_TRUE(this->world.Wait([&] { return this->callee.requests.size() == 2; }));
}

TYPED_TEST_P(SocketContract, OnlyTheCallerThatIsAskedAboutCanBeRejected) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->callee.socket.Reject(this->callee.requests.back() + 1);
  this->LetEventsThrough();
  EXPECT_EQ(this->caller.closes, 0u);
  this->Answer();
  ASSERT_TRUE(
      this->world.Wait([&] { return this->callee.socket.State() == SocketState::Connected; }));
  this->callee.socket.Reject(this->callee.requests.back());
  this->LetEventsThrough();
  EXPECT_EQ(this->callee.socket.State(), SocketState::Connected);
  EXPECT_EQ(this->caller.closes, 0u);
}

TYPED_TEST_P(SocketContract, AnsweringACallerWhoHasLeftCloses) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->caller.socket.Close();
  this->Answer();
  EXPECT_EQ(this->callee.closes, 0u);
  EXPECT_TRUE(this->WaitForClose(this->callee));
  EXPECT_EQ(this->callee.socket.State(), SocketState::Closed);
  EXPECT_EQ(this->callee.closes, 1u);
}

TYPED_TEST_P(SocketContract, AnsweringAnUnknownCallCloses) {
  this->callee.socket.Accept(4711);
  EXPECT_EQ(this->callee.closes, 0u);
  EXPECT_TRUE(this->WaitForClose(this->callee));
}

TYPED_TEST_P(SocketContract, ArrivalsComeBeforeTheCloseWhichComesOnce) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->caller.socket.SendData(u"last words", TextKind::Line);
  this->caller.socket.Close();
  EXPECT_EQ(this->caller.socket.State(), SocketState::Closed);
  EXPECT_EQ(this->caller.socket.RemoteHostIP(), u"");
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_EQ(this->callee.Received(), u"last words");
  EXPECT_EQ(this->callee.textsBeforeClose, this->callee.texts.size());
  EXPECT_EQ(this->callee.socket.State(), SocketState::Closed);
  EXPECT_EQ(this->callee.closes, 1u);
  EXPECT_EQ(this->caller.closes, 0u) << "the side that closes gets no event";
}

TYPED_TEST_P(SocketContract, WordsSentOnAnsweringStillArriveWhenTheCalleeClosesAtOnce) {
  ASSERT_NO_FATAL_FAILURE(this->Ring());
  this->caller.socket.SendData(u"never read", TextKind::Line);
  this->Answer();
  this->callee.socket.SendData(u"good bye", TextKind::Line);
  this->callee.socket.Close();
  ASSERT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.Received(), u"good bye");
  EXPECT_EQ(this->callee.texts.size(), 0u);
}

TYPED_TEST_P(SocketContract, ACallThatNobodyTakesCloses) {
  this->Listen();
  this->callee.socket.Close();
  this->Call(this->caller);
  EXPECT_EQ(this->caller.closes, 0u);
  EXPECT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.socket.State(), SocketState::Closed);
  EXPECT_EQ(this->caller.connects, 0u);
  EXPECT_EQ(this->caller.socket.LastCallFailure(), CallFailure::Refused);
}

TYPED_TEST_P(SocketContract, ACallToAnUnknownNameClosesAndSaysSo) {
  this->caller.socket.SetRemoteHost(u"nowhere.invalid");
  this->caller.socket.SetRemotePort(4000);
  this->caller.socket.Connect();
  EXPECT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.socket.LastCallFailure(), CallFailure::UnknownHost);
}

TYPED_TEST_P(SocketContract, TheReasonOfAFailedCallStaysUntilTheNextCall) {
  this->caller.socket.SetRemoteHost(u"nowhere.invalid");
  this->caller.socket.SetRemotePort(4000);
  this->caller.socket.Connect();
  ASSERT_TRUE(this->WaitForClose(this->caller));
  this->caller.socket.Close();
  EXPECT_EQ(this->caller.socket.LastCallFailure(), CallFailure::UnknownHost);
  this->Listen();
  this->Call(this->caller);
  EXPECT_EQ(this->caller.socket.LastCallFailure(), CallFailure::None);
  ASSERT_TRUE(this->world.Wait([&] { return this->caller.connects == 1; }));
  this->callee.socket.Close();
  ASSERT_TRUE(this->world.Wait([&] { return this->caller.closes == 2; }));
  EXPECT_EQ(this->caller.socket.LastCallFailure(), CallFailure::None) << "the call was made";
}

TYPED_TEST_P(SocketContract, ACancelledCallRaisesNothing) {
  this->Listen();
  this->Call(this->caller);
  this->caller.socket.Close();
  this->Call(this->other);
  this->callee.answer = [this](std::int64_t) { this->callee.socket.Close(); };
  ASSERT_TRUE(this->WaitForClose(this->other));
  EXPECT_EQ(this->caller.Events(), 0u);
}

TYPED_TEST_P(SocketContract, ClosingInsideAnEventEndsTheEvents) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->callee.socket.onDataArrival = [this](std::int32_t) {
    this->callee.texts.push_back(this->callee.socket.GetData());
    this->callee.socket.Close();
  };
  this->caller.socket.SendData(u"one", TextKind::Line);
  ASSERT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->callee.texts.size(), 1u);
  EXPECT_EQ(this->callee.closes, 0u);
}

TYPED_TEST_P(SocketContract, ClosingTwiceIsHarmlessAndTheSocketServesAgain) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->callee.socket.Close();
  this->callee.socket.Close();
  ASSERT_TRUE(this->WaitForClose(this->caller));
  this->caller.connects = 0;
  this->callee.requests.clear();
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->caller.socket.SendData(u"again", TextKind::Line);
  EXPECT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"again"; }));
}

TYPED_TEST_P(SocketContract, EachConnectionHasANumberOfItsOwn) {
  for (SocketUser* user : {&this->caller, &this->callee}) {
    EXPECT_EQ(user->socket.CurrentConnection(), 0u);
  }
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  const ConnectionNumber callers = this->caller.socket.CurrentConnection();
  const ConnectionNumber callees = this->callee.socket.CurrentConnection();
  EXPECT_GT(callers, 0u);
  EXPECT_GT(callees, 0u);
  this->callee.socket.Close();
  ASSERT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.socket.CurrentConnection(), callers) << "it was the last";
  this->caller.connects = 0;
  this->callee.requests.clear();
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  EXPECT_GT(this->caller.socket.CurrentConnection(), callers);
  EXPECT_GT(this->callee.socket.CurrentConnection(), callees);
}

TYPED_TEST_P(SocketContract, PausedArrivalsAndTheCloseBehindThemWaitInOrder) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->callee.socket.PauseArrivals();
  this->SendAndClose({u"one ", u"two ", u"three"});
  ASSERT_TRUE(this->WaitUntilAllHasArrived());
  EXPECT_EQ(this->callee.texts.size(), 0u);
  EXPECT_EQ(this->callee.closes, 0u);
  EXPECT_TRUE(this->callee.socket.ArrivalsPaused());
  this->callee.socket.ResumeArrivals();
  EXPECT_FALSE(this->callee.socket.ArrivalsPaused());
  EXPECT_EQ(this->callee.texts.size(), 0u) << "operations raise nothing themselves";
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_EQ(this->callee.Received(), u"one two three");
  EXPECT_EQ(this->callee.textsBeforeClose, this->callee.texts.size());
  EXPECT_EQ(this->callee.closes, 1u);
}

TYPED_TEST_P(SocketContract, PausingInsideAnArrivalHoldsTheNextOneBack) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->callee.socket.onDataArrival = [this](std::int32_t) {
    this->callee.texts.push_back(this->callee.socket.GetData());
    this->callee.socket.PauseArrivals();
  };
  this->caller.socket.SendData(u"one ", TextKind::Line);
  ASSERT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"one "; }));
  this->SendAndClose({u"two"});
  ASSERT_TRUE(this->WaitUntilAllHasArrived());
  EXPECT_EQ(this->callee.Received(), u"one ");
  this->callee.socket.ResumeArrivals();
  ASSERT_TRUE(this->world.Wait([&] { return this->callee.Received() == u"one two"; }));
  this->LetEventsThrough();
  EXPECT_EQ(this->callee.closes, 0u);
  this->callee.socket.ResumeArrivals();
  EXPECT_TRUE(this->WaitForClose(this->callee));
}

TYPED_TEST_P(SocketContract, APausedSocketStillSends) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->callee.socket.PauseArrivals();
  this->callee.socket.SendData(u"hello", TextKind::Line);
  EXPECT_TRUE(this->world.Wait([&] { return this->caller.Received() == u"hello"; }));
}

TYPED_TEST_P(SocketContract, APauseHoldsForTheNextConnectionToo) {
  this->callee.socket.PauseArrivals();
  this->callee.socket.PauseArrivals();
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->SendAndClose({u"hello"});
  ASSERT_TRUE(this->WaitUntilAllHasArrived());
  EXPECT_EQ(this->callee.texts.size(), 0u);
  this->callee.socket.ResumeArrivals();
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_EQ(this->callee.Received(), u"hello");
}

TYPED_TEST_P(SocketContract, ClosingDropsPausedArrivals) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->callee.socket.PauseArrivals();
  this->SendAndClose({u"never read"});
  ASSERT_TRUE(this->WaitUntilAllHasArrived());
  this->callee.socket.Close();
  this->callee.socket.ResumeArrivals();
  this->LetEventsThrough();
  EXPECT_EQ(this->callee.texts.size(), 0u);
  EXPECT_EQ(this->callee.closes, 0u);
}

TYPED_TEST_P(SocketContract, SidesMayChangeTheirRoles) {
  ASSERT_NO_FATAL_FAILURE(this->ConnectBoth());
  this->caller.socket.Close();
  ASSERT_TRUE(this->WaitForClose(this->callee));
  this->caller.socket.SetLocalPort(0);
  this->caller.socket.Listen();
  this->callee.socket.SetRemoteHost(this->world.Host());
  this->callee.socket.SetRemotePort(this->caller.socket.LocalPort());
  this->callee.socket.Connect();
  EXPECT_TRUE(this->world.Wait(
      [&] { return this->caller.requests.size() == 1 && this->callee.connects == 1; }));
}

REGISTER_TYPED_TEST_SUITE_P(
    SocketContract, StartsClosedWithNobodyAtTheOtherEnd, ListeningOnPortZeroTellsThePortInUse,
    ListeningOnATakenPortFails, AnAnsweredCallConnectsBothSides, ACallMayBeAnsweredInsideItsEvent,
    OperationsRaiseNothingThemselves, TextsArriveWithTheirLength,
    CharactersOutsideTheCodePageArriveAsQuestionMarks, NothingIsSentUnlessConnected,
    TextSentBeforeTheAnswerArrivesAfterIt, ARefusedCallCloses, ARefusedCallCanNoLongerBeAnswered,
    ASecondCallerWaitsAndIsRefusedWhenTheListenerCloses,
    ARejectedCallerIsClosedAndTheNextOneIsAskedAbout, ARejectedCallerWhoHasLeftMakesRoomForTheNext,
    OnlyTheCallerThatIsAskedAboutCanBeRejected, AnsweringACallerWhoHasLeftCloses,
    AnsweringAnUnknownCallCloses, ArrivalsComeBeforeTheCloseWhichComesOnce,
    WordsSentOnAnsweringStillArriveWhenTheCalleeClosesAtOnce, ACallThatNobodyTakesCloses,
    ACallToAnUnknownNameClosesAndSaysSo, TheReasonOfAFailedCallStaysUntilTheNextCall,
    ACancelledCallRaisesNothing, ClosingInsideAnEventEndsTheEvents,
    ClosingTwiceIsHarmlessAndTheSocketServesAgain, EachConnectionHasANumberOfItsOwn,
    PausedArrivalsAndTheCloseBehindThemWaitInOrder, PausingInsideAnArrivalHoldsTheNextOneBack,
    APausedSocketStillSends, APauseHoldsForTheNextConnectionToo, ClosingDropsPausedArrivals,
    SidesMayChangeTheirRoles);

}  // namespace verlume
