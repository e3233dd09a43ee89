#include "connection/wire_protocol.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/protocol_marker.h"
#include "richtext/code_pages.h"
#include "support/side.h"

namespace verlume {
namespace {

using namespace std::literals;

// Alice and Bob are connected: what Bob's socket sends, Alice receives.
class WireProtocolTest : public testing::Test, protected fake::TwoSides {
 protected:
  void SetUp() override { Connect(); }
  void Arrive(std::u16string_view data) {
    bob.fake.socket.SendData(data, TextKind::Line);
    network.RunUntilIdle();
  }
  std::u16string Message(std::u16string_view rest) const { return marker + std::u16string(rest); }
  // Alice is told of exactly this failure.
  void ExpectReport(std::u16string_view title, std::u16string_view failure) {
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title, title);
    EXPECT_NE(dialogs.messages[0].text.find(failure), std::u16string::npos);
  }
  const std::u16string marker = BuildProtocolMarker();
  fake::FakeDialogs& dialogs = alice.fake.dialogs;
  fake::FakeMainWindow& window = alice.fake.window;
};

TEST(ProtocolMarkerTest, ItIsTheFixedText) {
  EXPECT_EQ(BuildProtocolMarker(),
            u"\0maet emulreV eht yb edaMemulreV ςαδάμο ςητ αίγρυοιμηΔemulreVemulreV\0"s);
  EXPECT_EQ(BuildProtocolMarker().size(), 69u);
}

TEST(ProtocolMarkerTest, ItCrossesTheWireUnchanged) {
  const std::string bytes = richtext::EncodeGreek(BuildProtocolMarker());
  EXPECT_EQ(bytes, kMarkerBytes);
  EXPECT_EQ(richtext::DecodeGreek(bytes), BuildProtocolMarker());
}

TEST_F(WireProtocolTest, SendersOpenWithMarkerAndKind) {
  alice.fake.socket.sent.clear();
  alice.wire.SendStart();
  alice.wire.SendNickname();
  alice.wire.SendActionLine(u"{\\rtf1 waves}");
  alice.wire.SendChatLine(u"{\\rtf1 hello}");
  EXPECT_EQ(alice.fake.socket.sent,
            (std::vector<std::u16string>{Message(u"SAlice\0"sv), Message(u"NAlice\0"sv),
                                         Message(u"M{\\rtf1 waves}"), u"{\\rtf1 hello}"}));
}

TEST_F(WireProtocolTest, EverySendIsCountedInCharacters) {
  window.lblBytesSent.SetTag(u"");
  alice.wire.SendToPeer(u"{\\rtf1 αβγ}", TextKind::Line);
  EXPECT_EQ(window.lblBytesSent.tag, u"11");
  alice.wire.SendToPeer(std::u16string(1234, u'x'), TextKind::Line);
  EXPECT_EQ(window.lblBytesSent.tag, u"1245");
  EXPECT_EQ(window.lblBytesSent.caption, u"1,245");
}

TEST_F(WireProtocolTest, OutsideAConnectionNothingIsSentOrCounted) {
  alice.actions.CloseConnection();
  window.lblBytesSent.SetTag(u"5");
  alice.fake.socket.sent.clear();
  EXPECT_TRUE(alice.wire.SendToPeer(u"hello", TextKind::Line));
  alice.Wait(u"4001");
  EXPECT_TRUE(alice.wire.SendToPeer(u"hello", TextKind::Line));
  EXPECT_TRUE(alice.fake.socket.sent.empty());
  EXPECT_EQ(window.lblBytesSent.tag, u"5");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(WireProtocolTest, AnOverflowOfTheSentCountIsReported) {
  window.lblBytesSent.SetTag(u"2147483647");
  dialogs.answers = {Answer::No};
  EXPECT_FALSE(alice.wire.SendToPeer(u"x", TextKind::Line));
  ExpectReport(u"Verlume, 227.", u"Overflow");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
}

TEST_F(WireProtocolTest, EveryArrivalIsCountedInCharacters) {
  window.lblBytesReceived.SetTag(u"");
  Arrive(u"{\\rtf1 αβγ}");
  EXPECT_EQ(window.lblBytesReceived.tag, u"11");
  Arrive(Message(u"NBobby\0"sv));
  EXPECT_EQ(window.lblBytesReceived.tag, u"87");
  Arrive(std::u16string(1000, u'x'));
  EXPECT_EQ(window.lblBytesReceived.caption, u"1,087");
}

TEST_F(WireProtocolTest, AnOverflowOfTheReceivedCountIsReported) {
  window.lblBytesReceived.SetTag(u"2147483640");
  Arrive(u"1234567");
  EXPECT_EQ(window.lblBytesReceived.tag, u"2147483647");
  dialogs.answers = {Answer::No};
  Arrive(u"x");
  ExpectReport(u"Verlume, 209.", u"Overflow");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.DialoguePane(), u"<Bob>1234567");
}

TEST_F(WireProtocolTest, TextWithoutMarkerIsALineOfThePeer) {
  Arrive(u"{\\rtf1 hello}");
  Arrive(u"from another program");
  EXPECT_EQ(alice.DialoguePane(), u"<Bob>hello\n<Bob>from another program");
  alice.dialogue.WriteDialogueLine(u"mine", Sender::Local, CommandPane::Clear);
  EXPECT_TRUE(alice.DialoguePane().ends_with(u"\n<Alice>mine"));
}

TEST_F(WireProtocolTest, ARemoteLineKeepsWhatIsBeingTyped) {
  window.rtbCommands.SetText(u"half a li");
  Arrive(u"{\\rtf1 hello}");
  Arrive(Message(u"M{\\rtf1 Bob waves}"));
  EXPECT_EQ(window.rtbCommands.Text(), u"half a li");
}

TEST_F(WireProtocolTest, AMarkerThatIsNotExactIsForeignText) {
  std::u16string other = Message(u"NEve\0"sv);
  other[68] = u'x';
  Arrive(other);
  Arrive(u"x" + Message(u"NEve\0"sv));
  Arrive(marker.substr(0, 40));
  EXPECT_EQ(alice.state.RemoteNickname, u"Bob");
  EXPECT_EQ(std::ranges::count(alice.DialoguePane(), u'>'), 3);
}

TEST_F(WireProtocolTest, AnUnknownKindIsForeignText) {
  for (const auto rest : {u"Xhello"sv, u"s\0"sv, u"n\0"sv, u""sv}) {
    window.rtbData.SetText(u"");
    Arrive(Message(rest));
    EXPECT_TRUE(alice.DialoguePane().starts_with(u"<Bob>"));
    EXPECT_GT(alice.DialoguePane().size(), 60u);
    EXPECT_EQ(alice.state.RemoteNickname, u"Bob");
  }
}

TEST_F(WireProtocolTest, AnActionLineHasNoTag) {
  Arrive(Message(u"M{\\rtf1 Bob waves}"));
  EXPECT_EQ(alice.DialoguePane(), u" Bob waves");
  Arrive(u"hello");
  EXPECT_EQ(alice.DialoguePane(), u" Bob waves\n<Bob>hello");
}

TEST_F(WireProtocolTest, AnEmptyActionLineLeavesNothingBehind) {
  Arrive(Message(u"M"));
  EXPECT_EQ(alice.DialoguePane(), u"");
  Arrive(u"hello");
  EXPECT_EQ(alice.DialoguePane(), u"<Bob>hello");
}

TEST_F(WireProtocolTest, GluedActionLinesAreOneLineWithTheSecondsMarkerInside) {
  network.joinArrivals = true;
  bob.wire.SendActionLine(u"Bob waves");
  bob.wire.SendActionLine(u"Bob bows");
  network.RunUntilIdle();
  const std::u16string line = alice.DialoguePane();
  EXPECT_TRUE(line.starts_with(u" Bob waves"));
  EXPECT_TRUE(line.ends_with(u"MBob bows"));
  EXPECT_NE(line.find(marker.substr(1, 67)), line.npos);
}

TEST_F(WireProtocolTest, GluedChatLinesAreOneLine) {
  network.joinArrivals = true;
  bob.wire.SendChatLine(u"one,");
  bob.wire.SendChatLine(u"two");
  network.RunUntilIdle();
  EXPECT_EQ(alice.DialoguePane(), u"<Bob>one,two");
}

TEST_F(WireProtocolTest, WhatIsGluedToANicknameIsLost) {
  Arrive(Message(u"NBobby\0hello"sv));
  EXPECT_EQ(alice.state.RemoteNickname, u"Bobby");
  EXPECT_EQ(alice.DialoguePane(), u"");
}

TEST_F(WireProtocolTest, TheSecondPieceOfASplitMessageIsForeignText) {
  Arrive(Message(u"MBob wa"));
  Arrive(u"ves");
  EXPECT_EQ(alice.DialoguePane(), u" Bob wa\n<Bob>ves");
}

TEST_F(WireProtocolTest, ANicknameChangesNothingElse) {
  alice.RecordDialogues();
  window.lblChatDuration.SetTag(u"17");
  const std::u16string status = alice.Status();
  Arrive(Message(u"NΒασίλης\0"sv));
  EXPECT_EQ(alice.state.RemoteNickname, u"Βασίλης");
  EXPECT_EQ(window.lblRemoteNickname.caption, u"Βασίλης");
  EXPECT_EQ(alice.Status(), status);
  EXPECT_EQ(window.lblChatDuration.tag, u"17");
  EXPECT_EQ(alice.state.LogFileStem, u"Bob");
  EXPECT_EQ(alice.LogOf(u"Bob"), u"");
}

TEST_F(WireProtocolTest, AMessageWithoutEndIsReported) {
  for (const auto rest : {u"NBobby"sv, u"CBob"sv, u"SBob"sv, u"N"sv}) {
    alice.actions.CloseConnection();
    network.RunUntilIdle();
    Connect();
    dialogs.messages.clear();
    dialogs.answers = {Answer::No};
    Arrive(Message(rest));
    ExpectReport(u"Verlume, 209.", u"5 with the description 'Invalid procedure call");
    EXPECT_EQ(alice.State(), ConnectionState::Idle);
    EXPECT_EQ(alice.state.RemoteNickname, u"Bob");
  }
}

TEST_F(WireProtocolTest, ASecondHandshakeBeginsTheConversationAnew) {
  alice.RecordDialogues();
  for (const auto rest : {u"SBob/2\0"sv, u"CBob/2\0"sv}) {
    alice.fake.clock.now.hour += 1;
    for (fake::FakeLabel* count :
         {&window.lblChatDuration, &window.lblBytesSent, &window.lblBytesReceived}) {
      count->SetTag(u"99");
    }
    Arrive(Message(rest));
    EXPECT_EQ(window.lblChatDuration.tag, u"0");
    EXPECT_EQ(window.lblBytesSent.tag, u"0");
    EXPECT_EQ(window.lblBytesReceived.tag, u"0");
    EXPECT_EQ(alice.state.RemoteNickname, u"Bob/2");
    EXPECT_EQ(alice.State(), ConnectionState::Connected);
  }
  EXPECT_EQ(window.lblChatStartDateTime.caption, u"7 of month 3 2026 - 11 h 5 m 30 s");
  EXPECT_EQ(alice.LogOf(u"Bob_2"), u"");
  EXPECT_EQ(alice.LogOf(u"Bob"),
            u"[2026-03-07_10:05:30]***** Remote computer IP address / port: 192.0.2.2 / 4000. "
            u"Active connection.\r\n"
            u"[2026-03-07_11:05:30]***** Remote computer IP address / port: 192.0.2.2 / 4000. "
            u"Active connection.\r\n");
}

TEST_F(WireProtocolTest, HandshakesUnderManyNicknamesMakeOneLog) {
  alice.RecordDialogues();
  for (int i = 0; i < 100; ++i) {
    Arrive(Message(u"CEve" + DecimalText(i) + u'\0'));
    Arrive(Message(u"STodo" + DecimalText(i) + u'\0'));
  }
  EXPECT_EQ(alice.fake.files.ListFiles(u"/logs", u".txt"), std::vector<std::u16string>{u"Bob.txt"});
  EXPECT_EQ(alice.state.LogFileStem, u"Bob");
}

TEST_F(WireProtocolTest, TheNextConversationHasItsOwnLog) {
  alice.RecordDialogues();
  Arrive(u"hello");
  alice.actions.CloseConnection();
  network.RunUntilIdle();
  bob.state.Nickname = u"Carol";
  Connect();
  Arrive(u"hello");
  EXPECT_TRUE(alice.LogOf(u"Bob").ends_with(u"Disconnected.\r\n"));
  EXPECT_TRUE(alice.LogOf(u"Carol").ends_with(u"<Carol>hello\r\n"));
}

TEST_F(WireProtocolTest, AStartIsAnsweredEachTimeAConfirmNever) {
  alice.fake.socket.sent.clear();
  Arrive(Message(u"CBob\0"sv));
  EXPECT_TRUE(alice.fake.socket.sent.empty());
  Arrive(Message(u"SBob\0"sv));
  EXPECT_EQ(alice.fake.socket.sent, std::vector<std::u16string>{Message(u"CAlice\0"sv)});
}

TEST_F(WireProtocolTest, AFailedAnswerToAStartMakesNoConnection) {
  window.lblBytesSent.SetTag(u"2147483647");
  dialogs.answers = {Answer::No};
  Arrive(Message(u"SBob\0"sv));
  ExpectReport(u"Verlume, 227.", u"Overflow");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Lamp(), 255);
}

TEST_F(WireProtocolTest, AnUnwritableLogIsReportedAndEndsTheConversation) {
  alice.RecordDialogues();
  alice.fake.files.writesFail = FailureNumber::DiskFull;
  dialogs.answers = {Answer::No};
  Arrive(Message(u"CBob\0"sv));
  ExpectReport(u"Verlume, 240.", u"Disk full");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
}

}  // namespace
}  // namespace verlume
