#include "connection/connection_state.h"

#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

constexpr ConnectionState kStates[] = {ConnectionState::Idle, ConnectionState::Waiting,
                                       ConnectionState::Calling, ConnectionState::Connected};

TEST(ConnectionStateTest, NoFlagIsIdle) {
  EXPECT_EQ(StateOf(AppState{}), ConnectionState::Idle);
}

TEST(ConnectionStateTest, EachStateIsEnteredFromEachOther) {
  for (const ConnectionState from : kStates) {
    for (const ConnectionState to : kStates) {
      AppState state;
      EnterState(state, from);
      state.ReservedState = true;
      EnterState(state, to);
      EXPECT_EQ(StateOf(state), to);
      EXPECT_EQ(state.IsWaiting, to == ConnectionState::Waiting);
      EXPECT_EQ(state.IsCalling, to == ConnectionState::Calling);
      EXPECT_EQ(state.IsConnected, to == ConnectionState::Connected);
      EXPECT_FALSE(state.ReservedState);
    }
  }
}

TEST(ConnectionStateTest, ResetClearsFlagsLabelsLampAndSocket) {
  for (const ConnectionState from : kStates) {
    fake::FakeNetwork network;
    fake::Side side(network, u"Alice", u"192.0.2.1");
    side.Wait(u"4000");
    EnterState(side.state, from);
    side.fake.window.lblRemoteIP.SetCaption(u"192.0.2.2");
    side.fake.window.lblRemotePort.SetCaption(u"4001");

    ResetConnection(side.state, side.fake.platform);

    EXPECT_EQ(side.State(), ConnectionState::Idle);
    EXPECT_EQ(side.fake.window.lblLocalPort.caption, u"");
    EXPECT_EQ(side.fake.window.lblRemoteIP.caption, u"");
    EXPECT_EQ(side.fake.window.lblRemotePort.caption, u"");
    EXPECT_EQ(side.Lamp(), 255);
    EXPECT_EQ(side.fake.socket.State(), SocketState::Closed);
  }
}

TEST(ConnectionStateTest, ResetLeavesWhatTellsOfTheLastConversation) {
  fake::TwoSides two;
  two.Connect();
  two.alice.fake.window.lblBytesSent.SetTag(u"12");
  const std::u16string start = two.alice.fake.window.lblChatStartDateTime.caption;
  ResetConnection(two.alice.state, two.alice.fake.platform);
  EXPECT_EQ(two.alice.fake.window.lblRemoteNickname.caption, u"Bob");
  EXPECT_EQ(two.alice.fake.window.lblChatStartDateTime.caption, start);
  EXPECT_EQ(two.alice.fake.window.lblBytesSent.tag, u"12");
}

TEST(ConnectionStateTest, ResetDropsWhatIsNotShownYet) {
  fake::FakeNetwork network;
  fake::Side side(network, u"Alice", u"192.0.2.1");
  const int before = side.fake.window.rtbData.timesDropped;
  ResetConnection(side.state, side.fake.platform);
  EXPECT_EQ(side.fake.window.rtbData.timesDropped, before + 1);
}

}  // namespace
}  // namespace verlume
