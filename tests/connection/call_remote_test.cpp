#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class CallRemoteTest : public testing::Test, protected fake::TwoSides {
 protected:
  fake::FakeDialogs& dialogs = alice.fake.dialogs;
  fake::FakeMainWindow& window = alice.fake.window;
};

TEST_F(CallRemoteTest, HostAndPortAreCalledAtOnce) {
  alice.Call(u"bob.example 4000");
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  EXPECT_EQ(alice.fake.socket.State(), SocketState::Connecting);
  EXPECT_EQ(alice.fake.socket.remoteHost, u"bob.example");
  EXPECT_EQ(alice.fake.socket.RemotePort(), 4000);
  EXPECT_EQ(alice.state.RemoteHost, u"bob.example");
  EXPECT_EQ(alice.state.RemotePort, 4000);
  EXPECT_EQ(alice.Status(), u"Remote computer / port: bob.example / 4000. Calling...");
  EXPECT_EQ(window.lblRemoteIP.caption, u"bob.example");
  EXPECT_EQ(window.lblRemotePort.caption, u"4000");
  EXPECT_EQ(alice.Lamp(), 65535);
  EXPECT_TRUE(dialogs.messages.empty() && dialogs.asked.empty());
}

TEST_F(CallRemoteTest, TheStatusIsGreekInGreek) {
  alice.state.IsGreek = true;
  alice.Call(u"bob 4000");
  EXPECT_EQ(alice.Status(), u"Απομακρυσμένος υπολογιστής / θύρα: bob / 4000. Κλήση...");
}

TEST_F(CallRemoteTest, WithoutPortOnlyThePortIsAskedFor) {
  dialogs.typed = {u"4000"};
  alice.Call(u"bob");
  ASSERT_EQ(dialogs.asked.size(), 1u);
  EXPECT_EQ(dialogs.asked[0].title, u"Calling remote computer - Port");
  EXPECT_EQ(dialogs.asked[0].defaultText, u"");
  EXPECT_EQ(alice.state.RemotePort, 4000);
}

TEST_F(CallRemoteTest, WithoutAnythingHostAndPortAreAskedFor) {
  dialogs.typed = {u"a host, as typed", u" 4000 "};
  alice.Call(u"");
  ASSERT_EQ(dialogs.asked.size(), 2u);
  EXPECT_EQ(dialogs.asked[0].title, u"Calling remote computer - Name or IP");
  EXPECT_EQ(dialogs.asked[0].defaultText, u"");
  EXPECT_EQ(alice.state.RemoteHost, u"a host, as typed");
  EXPECT_EQ(alice.state.RemotePort, 4000);
}

TEST_F(CallRemoteTest, AnEmptyHostEndsTheAction) {
  dialogs.typed = {u""};
  alice.Call(u"");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(dialogs.asked.size(), 1u);
}

TEST_F(CallRemoteTest, AnEmptyPortEndsTheAction) {
  dialogs.typed = {u""};
  alice.Call(u"bob");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.state.RemoteHost, u"");
}

TEST_F(CallRemoteTest, AFurtherWordSpoilsThePort) {
  dialogs.typed = {u"4001"};
  alice.Call(u"bob 4000 x");
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(alice.state.RemotePort, 4001);
}

TEST_F(CallRemoteTest, TwoBlanksBeforeTheHostLeaveItEmpty) {
  dialogs.typed = {u"bob", u"4000"};
  alice.Call(u" carol");
  EXPECT_EQ(alice.state.RemoteHost, u"bob");
  EXPECT_EQ(alice.state.RemotePort, 4000);
}

TEST_F(CallRemoteTest, AWrongPortIsToldAndAskedForAgain) {
  dialogs.typed = {u"port", u"-1", u"4000"};
  alice.Call(u"bob");
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[0].text, u"The port number you typed, is wrong.");
  EXPECT_EQ(dialogs.messages[0].title, u"Calling remote computer - Port");
  EXPECT_EQ(dialogs.asked.size(), 3u);
  EXPECT_EQ(alice.state.RemotePort, 4000);
}

TEST_F(CallRemoteTest, PortZeroIsAccepted) {
  alice.Call(u"bob 0");
  EXPECT_TRUE(dialogs.asked.empty());
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  EXPECT_EQ(window.lblRemotePort.caption, u"0");
}

TEST_F(CallRemoteTest, APortAbove32767IsReported) {
  for (const auto line : {u"bob 70000", u"bob 32768", u"bob 9999999999"}) {
    dialogs.messages.clear();
    dialogs.answers = {Answer::No};
    alice.Call(line);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title, u"Verlume, 206.");
    EXPECT_NE(dialogs.messages[0].text.find(u"6 with the description 'Overflow'"),
              std::u16string::npos);
    EXPECT_EQ(alice.State(), ConnectionState::Idle);
  }
}

TEST_F(CallRemoteTest, ATypedPortAbove32767IsReported) {
  dialogs.typed = {u"32768"};
  dialogs.answers = {Answer::No};
  alice.Call(u"bob");
  EXPECT_EQ(dialogs.messages.back().title, u"Verlume, 206.");
}

TEST_F(CallRemoteTest, TheLineGoesToTheDialogueAndTheCommandPaneIsEmptied) {
  alice.state.OutgoingText = u"/CALL bob 4000";
  window.rtbCommands.SetText(u"/CALL bob 4000");
  alice.Call(u"bob 4000");
  EXPECT_EQ(alice.DialoguePane(), u"<Alice>/CALL bob 4000");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
}

TEST_F(CallRemoteTest, WhileConnectedItIsRefused) {
  Connect();
  alice.Call(u"carol 4001");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
  EXPECT_EQ(alice.state.RemoteHost, u"bob");
}

TEST_F(CallRemoteTest, NoKeepsWaiting) {
  alice.Wait(u"4001");
  dialogs.answers = {Answer::No};
  alice.Call(u"bob 4000");
  EXPECT_EQ(alice.State(), ConnectionState::Waiting);
  EXPECT_EQ(alice.fake.socket.State(), SocketState::Listening);
}

TEST_F(CallRemoteTest, YesQuitsWaitingAndCalls) {
  alice.Wait(u"4001");
  dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  EXPECT_EQ(window.lblLocalPort.caption, u"");
}

TEST_F(CallRemoteTest, AnotherCallTakesTheFirstOnesPlaceOnlyOnYes) {
  alice.Call(u"bob 4000");
  dialogs.answers = {Answer::No, Answer::Yes};
  alice.Call(u"carol 4001");
  EXPECT_EQ(alice.state.RemoteHost, u"bob");
  alice.Call(u"carol 4001");
  EXPECT_EQ(alice.state.RemoteHost, u"carol");
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
}

TEST_F(CallRemoteTest, ACallAnsweredDuringTheQuestionIsNotDropped) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  dialogs.whileOpen = [this] { network.RunUntilIdle(); };
  dialogs.answers = {Answer::Yes};
  alice.Call(u"carol 4001");
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[1].icon, MessageIcon::Stop);
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
}

TEST_F(CallRemoteTest, ACallAnsweredWhileTheHostIsTypedIsNotDropped) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  dialogs.answers = {Answer::Yes};
  dialogs.typed = {u"carol", u"4001"};
  dialogs.whileOpen = [this] {
    if (!dialogs.asked.empty()) network.RunUntilIdle();
  };
  alice.Call(u"");
  EXPECT_EQ(alice.State(), ConnectionState::Connected);
  EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Stop);
}

TEST_F(CallRemoteTest, ACallThatEndedDuringTheQuestionIsNoObstacle) {
  alice.Call(u"nobody 4999");
  dialogs.whileOpen = [this] { network.RunUntilIdle(); };
  dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  EXPECT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(alice.State(), ConnectionState::Calling);
  EXPECT_EQ(alice.state.RemoteHost, u"bob");
}

TEST_F(CallRemoteTest, ALineThatCannotBeWrittenEndsTheCall) {
  alice.RecordDialogues();
  alice.state.LogOpen = true;
  alice.state.OutgoingText = u"/CALL bob 4000";
  alice.fake.files.writesFail = FailureNumber::DiskFull;
  dialogs.answers = {Answer::No};
  alice.Call(u"bob 4000");
  EXPECT_EQ(dialogs.messages.back().title, u"Verlume, 240.");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Lamp(), 255);
}

}  // namespace
}  // namespace verlume
