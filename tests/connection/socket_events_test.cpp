#include "connection/socket_events.h"

#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class SocketEventsTest : public testing::Test, protected fake::TwoSides {
 protected:
  void CallBob() {
    bob.Wait(u"4000");
    alice.Call(u"bob 4000");
  }
  // What Bob does while the question is open.
  template <class Body>
  void WhileBobIsAsked(Body body) {
    bob.fake.dialogs.whileOpen = body;
  }
  fake::FakeDialogs& asked = bob.fake.dialogs;
  fake::FakeMainWindow& bobsWindow = bob.fake.window;
};

TEST_F(SocketEventsTest, AnIncomingCallIsShownAndAskedAbout) {
  CallBob();
  asked.answers = {Answer::Yes};
  std::u16string statusWhenAsked, ipWhenAsked, portWhenAsked;
  WhileBobIsAsked([&] {
    statusWhenAsked = bob.Status();
    ipWhenAsked = bobsWindow.lblRemoteIP.caption;
    portWhenAsked = bobsWindow.lblRemotePort.caption;
  });
  network.RunUntilIdle();
  const std::u16string port = DecimalText(alice.fake.socket.LocalPort());
  EXPECT_EQ(statusWhenAsked,
            u"Remote computer / port: 192.0.2.1 / " + port + u". Establishing a connection...");
  EXPECT_EQ(ipWhenAsked, u"192.0.2.1");
  EXPECT_EQ(portWhenAsked, port);
  ASSERT_EQ(asked.messages.size(), 1u);
  EXPECT_TRUE(asked.messages[0].unexpected);
  EXPECT_EQ(asked.messages[0].defaultAnswer, Answer::Yes);
}

TEST_F(SocketEventsTest, AcceptingSendsTheStartAndKeepsWaitingForTheAnswer) {
  CallBob();
  asked.answers = {Answer::Yes};
  alice.fake.socket.onDataArrival = nullptr;  // a caller that stays silent
  network.RunUntilIdle();
  EXPECT_EQ(bob.fake.socket.State(), SocketState::Connected);
  EXPECT_EQ(bob.fake.socket.sent,
            std::vector<std::u16string>{bob.state.ProtocolMarker + u"SBob" + u'\0'});
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
  EXPECT_EQ(bob.Lamp(), 65535);
  EXPECT_EQ(bobsWindow.lblBytesSent.tag, u"74");
}

TEST_F(SocketEventsTest, RejectedCallStopsListening) {
  CallBob();
  asked.answers = {Answer::No};
  network.RunUntilIdle();
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.fake.socket.State(), SocketState::Closed);
  EXPECT_EQ(bob.Status(),
            u"Remote computer IP address / Local port: 192.0.2.1 / 4000. You rejected the "
            u"incoming call.");
  EXPECT_EQ(bobsWindow.lblRemoteIP.caption, u"");
  EXPECT_EQ(bobsWindow.lblLocalPort.caption, u"");
  EXPECT_EQ(bob.Lamp(), 255);
  EXPECT_TRUE(bob.fake.socket.sent.empty());
}

TEST_F(SocketEventsTest, ARejectedCallerLearnsOfIt) {
  CallBob();
  asked.answers = {Answer::No};
  network.RunUntilIdle();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Status(),
            u"Remote computer / port: bob / 4000. A connection could NOT be established.");
}

TEST_F(SocketEventsTest, BothAnswersEndWithTheFocusInTheCommandPane) {
  for (const Answer answer : {Answer::Yes, Answer::No}) {
    CallBob();
    asked.answers = {answer};
    bobsWindow.rtbCommands.timesFocused = 0;
    network.RunUntilIdle();
    EXPECT_GT(bobsWindow.rtbCommands.timesFocused, 0);
    alice.actions.CloseConnection();
    network.RunUntilIdle();
  }
}

TEST_F(SocketEventsTest, ACallerThatLeftWhileAskedAboutMakesNoConnection) {
  CallBob();
  asked.answers = {Answer::Yes};
  WhileBobIsAsked([this] { alice.actions.CancelWaitOrCall(); });
  network.RunUntilIdle();
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.Status(), u"Remote computer / port:  / 0. A connection could NOT be established.");
  EXPECT_TRUE(bob.fake.socket.sent.empty());
}

TEST_F(SocketEventsTest, AnAnswerAfterTheWaitHasEndedDoesNothing) {
  for (const Answer answer : {Answer::Yes, Answer::No}) {
    CallBob();
    asked.answers = {answer};
    WhileBobIsAsked([this] {
      ResetConnection(bob.state, bob.fake.platform);
      bobsWindow.lblStatus.SetCaption(u"ended");
    });
    network.RunUntilIdle();
    EXPECT_EQ(bob.State(), ConnectionState::Idle);
    EXPECT_EQ(bob.fake.socket.State(), SocketState::Closed);
    EXPECT_EQ(bob.Status(), u"ended");
    EXPECT_TRUE(bob.fake.socket.sent.empty());
    alice.actions.CancelWaitOrCall();
    network.RunUntilIdle();
  }
}

TEST_F(SocketEventsTest, AnAnswerAfterTheListenerIsGoneAcceptsNobody) {
  CallBob();
  asked.answers = {Answer::Yes};
  WhileBobIsAsked([this] { bob.fake.socket.Close(); });
  network.RunUntilIdle();
  EXPECT_EQ(bob.fake.socket.State(), SocketState::Closed);
  EXPECT_TRUE(bob.fake.socket.sent.empty());
}

TEST_F(SocketEventsTest, ACompletedConnectSaysSoAndSendsNothing) {
  CallBob();
  std::u16string status, ip, port;
  ConnectionState state = ConnectionState::Idle;
  asked.answers = {Answer::No};
  WhileBobIsAsked([&] {
    network.RunUntilIdle();
    status = alice.Status();
    ip = alice.fake.window.lblRemoteIP.caption;
    port = alice.fake.window.lblRemotePort.caption;
    state = alice.State();
  });
  network.RunUntilIdle();
  EXPECT_EQ(status, u"Remote computer / port: 192.0.2.2 / 4000. Establishing a connection...");
  EXPECT_EQ(ip, u"192.0.2.2");
  EXPECT_EQ(port, u"4000");
  EXPECT_EQ(state, ConnectionState::Calling);
  EXPECT_TRUE(alice.fake.socket.sent.empty());
}

TEST_F(SocketEventsTest, ACallThatNobodyTakesIsGivenUp) {
  alice.state.IsGreek = true;
  alice.Call(u"nobody 4999");
  network.RunUntilIdle();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Status(),
            u"Απομακρυσμένος υπολογιστής / θύρα: nobody / 4999. Η σύνδεση ΔΕΝ κατέστη εφικτή.");
  EXPECT_EQ(alice.Lamp(), 255);
  EXPECT_EQ(alice.fake.window.lblRemoteIP.caption, u"");
}

TEST_F(SocketEventsTest, ACallerThatClosesBeforeTheHandshakeLeavesTheLastTypedHost) {
  bob.Call(u"carol 4005");
  bob.actions.CancelWaitOrCall();
  CallBob();
  asked.answers = {Answer::Yes};
  alice.fake.socket.onDataArrival = nullptr;
  network.RunUntilIdle();
  alice.actions.CancelWaitOrCall();
  network.RunUntilIdle();
  EXPECT_EQ(bob.State(), ConnectionState::Idle);
  EXPECT_EQ(bob.Status(),
            u"Remote computer / port: carol / 4005. A connection could NOT be established.");
}

TEST_F(SocketEventsTest, AFailedCallWritesNoLog) {
  alice.RecordDialogues();
  alice.state.LogOpen = true;
  alice.state.LogFileStem = u"Bob";
  alice.Call(u"nobody 4999");
  network.RunUntilIdle();
  EXPECT_EQ(alice.LogOf(u"Bob"), u"");
  EXPECT_TRUE(alice.state.LogOpen);
}

TEST_F(SocketEventsTest, APeerThatClosesEndsTheConversationAndItsLog) {
  alice.RecordDialogues();
  alice.state.IsGreek = true;
  Connect();
  bob.actions.CloseConnection();
  network.RunUntilIdle();
  const std::u16string status =
      u"Διεύθυνση IP απομακρυσμένου υπολογιστή / θύρα: 192.0.2.2 / 4000. Αποσυνδέθηκε.";
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Status(), status);
  EXPECT_TRUE(alice.LogOf(u"Bob").ends_with(u"[2026-03-07_09:05:30]***** " + status + u"\r\n"));
  EXPECT_FALSE(alice.state.LogOpen);
  EXPECT_EQ(alice.Lamp(), 255);
  EXPECT_EQ(alice.fake.socket.State(), SocketState::Closed);
}

TEST_F(SocketEventsTest, ACloseInIdleIsADisconnection) {
  alice.events.sckControl_Close();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Status(), u"Remote computer IP address / port:  / 0. Disconnected.");
}

TEST_F(SocketEventsTest, EachTextHasItsGreekTwin) {
  bob.state.IsGreek = true;
  CallBob();
  asked.answers = {Answer::No};
  std::u16string establishing;
  WhileBobIsAsked([&] { establishing = bob.Status(); });
  network.RunUntilIdle();
  EXPECT_TRUE(establishing.starts_with(u"Απομακρυσμένος υπολογιστής / θύρα: 192.0.2.1 / "));
  EXPECT_TRUE(establishing.ends_with(u". Σύνδεση σε εξέλιξη..."));
  EXPECT_EQ(bob.Status(),
            u"Διεύθυνση IP απομακρυσμένου υπολογιστή / Τοπική θύρα: 192.0.2.1 / 4000. "
            u"Απορρίψατε την εισερχόμενη κλήση.");
}

}  // namespace
}  // namespace verlume
