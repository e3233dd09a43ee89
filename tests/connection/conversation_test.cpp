// Whole conversations of two sides.
#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class ConversationTest : public testing::Test, protected fake::TwoSides {};

TEST_F(ConversationTest, BothSidesAreConnectedAfterTheHandshake) {
  Connect();
  const std::u16string alicesPort = DecimalText(alice.fake.socket.LocalPort());
  EXPECT_EQ(alice.Status(),
            u"Remote computer IP address / port: 192.0.2.2 / 4000. Active connection.");
  EXPECT_EQ(bob.Status(), u"Remote computer IP address / port: 192.0.2.1 / " + alicesPort +
                              u". Active connection.");
  EXPECT_EQ(alice.state.RemoteAddress, u"192.0.2.2");
  EXPECT_EQ(bob.state.RemotePort, alice.fake.socket.LocalPort());
  EXPECT_EQ(alice.state.LocalPort, alice.fake.socket.LocalPort());
  EXPECT_EQ(alice.fake.window.lblLocalPort.caption, alicesPort);
  EXPECT_EQ(bob.fake.window.lblLocalPort.caption, u"4000");
  EXPECT_EQ(alice.fake.window.lblRemoteNickname.caption, u"Bob");
  EXPECT_EQ(bob.fake.window.lblRemoteNickname.caption, u"Alice");
  for (const fake::Side* side : {&alice, &bob}) {
    EXPECT_EQ(side->State(), ConnectionState::Connected);
    EXPECT_FALSE(side->state.IsWaiting || side->state.IsCalling || side->state.ReservedState);
    EXPECT_EQ(side->Lamp(), 65280);
    EXPECT_EQ(side->fake.window.lblChatStartDateTime.caption, u"7 of month 3 2026 - 9 h 5 m 30 s");
    EXPECT_EQ(side->fake.window.lblBytesSent.tag, u"0");
    EXPECT_EQ(side->fake.window.lblBytesReceived.tag, u"0");
    EXPECT_EQ(side->fake.window.lblChatDuration.tag, u"0");
    EXPECT_TRUE(side->state.LogOpen);
  }
}

TEST_F(ConversationTest, WhatThePeerDoesCallsForAttentionWhatTheUserDoesNot) {
  const int& alices = alice.fake.window.window.timesFlagged;
  const int& bobs = bob.fake.window.window.timesFlagged;
  Connect();
  EXPECT_EQ(alices, 1) << "the connection is made";
  EXPECT_EQ(bobs, 1) << "the connection is made, the call had its box";
  alice.wire.SendChatLine(u"{\\rtf1\\ansi hello}");
  alice.wire.SendActionLine(u"{\\rtf1\\ansi Alice waves}");
  network.RunUntilIdle();
  EXPECT_EQ(alices, 1);
  EXPECT_EQ(bobs, 3) << "each line";
  alice.Nick(u"Ally");
  network.RunUntilIdle();
  EXPECT_EQ(bobs, 3) << "a nickname alone is nothing to read";
  alice.actions.CloseConnection();
  network.RunUntilIdle();
  EXPECT_EQ(alices, 1);
  EXPECT_EQ(bobs, 4) << "the end of the conversation";
}

TEST_F(ConversationTest, TheGreekStatusIsGreek) {
  alice.state.IsGreek = true;
  Connect();
  EXPECT_EQ(alice.Status(),
            u"Διεύθυνση IP απομακρυσμένου υπολογιστή / θύρα: 192.0.2.2 / 4000. "
            u"Ενεργός σύνδεση.");
}

TEST_F(ConversationTest, TheHandshakeIsStartAndConfirm) {
  Connect();
  const std::u16string& marker = alice.state.ProtocolMarker;
  EXPECT_EQ(bob.fake.socket.sent, std::vector<std::u16string>{marker + u"SBob" + u'\0'});
  EXPECT_EQ(alice.fake.socket.sent, std::vector<std::u16string>{marker + u"CAlice" + u'\0'});
}

TEST_F(ConversationTest, LinesReachTheOtherSideUnderTheSendersNickname) {
  Connect();
  alice.wire.SendChatLine(u"{\\rtf1\\ansi hello}");
  bob.wire.SendActionLine(u"{\\rtf1\\ansi Bob waves}");
  alice.Nick(u"Ally");
  alice.wire.SendChatLine(u"{\\rtf1\\ansi goodbye}");
  network.RunUntilIdle();
  EXPECT_EQ(bob.DialoguePane(), u"<Alice>hello\n<Ally>goodbye");
  EXPECT_EQ(alice.DialoguePane(), u" Bob waves");
  EXPECT_EQ(alice.fake.window.lblBytesSent.tag, bob.fake.window.lblBytesReceived.tag);
  EXPECT_EQ(bob.fake.window.lblBytesSent.tag, alice.fake.window.lblBytesReceived.tag);
}

TEST_F(ConversationTest, TheLogTellsTheWholeConversation) {
  bob.RecordDialogues();
  alice.state.Nickname = u"a/b:c";
  Connect();
  alice.wire.SendChatLine(u"{\\rtf1\\ansi hello}");
  alice.wire.SendActionLine(u"{\\rtf1\\ansi a/b:c waves}");
  network.RunUntilIdle();
  alice.actions.CloseConnection();
  network.RunUntilIdle();
  const std::u16string peer = u"Remote computer IP address / port: 192.0.2.1 / " +
                              DecimalText(bob.state.RemotePort) + u". ";
  EXPECT_EQ(bob.LogOf(u"a_b_c"), u"[2026-03-07_09:05:30]***** " + peer + u"Active connection.\r\n" +
                                     u"[2026-03-07_09:05:30]<a/b:c>hello\r\n" +
                                     u"[2026-03-07_09:05:30] a/b:c waves\r\n" +
                                     u"[2026-03-07_09:05:30]***** " + peer + u"Disconnected.\r\n");
}

TEST_F(ConversationTest, ANicknameBeforeTheHandshakeOnlyNamesThePeer) {
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  bob.fake.dialogs.whileOpen = [this] {
    network.RunUntilIdle();  // Alice's socket is connected, Bob has not accepted yet
    alice.Nick(u"Early");
    alice.fake.socket.onDataArrival = nullptr;
  };
  network.RunUntilIdle();
  EXPECT_EQ(bob.state.RemoteNickname, u"Early");
  EXPECT_EQ(bob.fake.window.lblRemoteNickname.caption, u"Early");
  EXPECT_EQ(bob.State(), ConnectionState::Waiting);
  EXPECT_FALSE(bob.state.LogOpen);
}

TEST_F(ConversationTest, AHandshakeGluedToALineReadsOnlyTheNickname) {
  network.joinArrivals = true;
  bob.Wait(u"4000");
  bob.fake.dialogs.answers = {Answer::Yes};
  alice.Call(u"bob 4000");
  bob.fake.dialogs.whileOpen = [this] { network.RunUntilIdle(); };
  const auto receive = alice.fake.socket.onDataArrival;
  alice.fake.socket.onDataArrival = [&](std::int32_t total) {
    receive(total);  // answers the start
    alice.wire.SendChatLine(u"lost");
  };
  network.RunUntilIdle();
  EXPECT_EQ(bob.State(), ConnectionState::Connected);
  EXPECT_EQ(bob.state.RemoteNickname, u"Alice");
  EXPECT_EQ(bob.DialoguePane(), u"");
}

TEST_F(ConversationTest, ASecondConversationStartsAfresh) {
  Connect();
  alice.wire.SendChatLine(u"hello");
  alice.actions.CloseConnection();
  network.RunUntilIdle();
  alice.Nick(u"Ally");
  alice.fake.clock.now.minute = 6;
  Connect();
  EXPECT_EQ(bob.state.RemoteNickname, u"Ally");
  EXPECT_EQ(alice.fake.window.lblBytesSent.tag, u"0");
  EXPECT_EQ(alice.fake.window.lblChatStartDateTime.caption, u"7 of month 3 2026 - 9 h 6 m 30 s");
}

TEST_F(ConversationTest, TheCalledSideMayCloseToo) {
  Connect();
  bob.actions.CloseConnection();
  network.RunUntilIdle();
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Status(), u"Remote computer IP address / port: 192.0.2.2 / 4000. Disconnected.");
  EXPECT_EQ(alice.fake.window.lblRemoteNickname.caption, u"Bob");
}

}  // namespace
}  // namespace verlume
