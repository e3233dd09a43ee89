// What the user is told about lines that have not been delivered.
#include <gtest/gtest.h>

#include <utility>

#include "support/side.h"

namespace verlume {
namespace {

class DeliveryTest : public testing::Test, protected fake::TwoSides {
 protected:
  void SetUp() override {
    alice.RecordDialogues();
    Connect();
  }
  void SendOnCutNetwork(int lines) {
    network.Cut();
    for (int line = 0; line < lines; ++line) alice.wire.SendChatLine(u"{\\rtf1 hello}");
  }
  void BobCloses() {
    bob.state.CommandLine = u"/CLOSE";
    bob.actions.CloseConnection();
    network.RunUntilIdle();
  }
  void AliceCloses() {
    alice.state.CommandLine = u"/CLOSE";
    alice.actions.CloseConnection();
  }
  // Bob has another nickname in the second conversation, in the middle of which Alice's undelivered
  // lines of the first are reported.
  void BeginAnotherConversation() {
    network.Mend();
    bob.state.Nickname = u"Carol";
    const auto tell = std::exchange(alice.fake.socket.onUndelivered, nullptr);
    std::size_t lost = 0;
    alice.fake.socket.onUndelivered = [&](std::size_t lines, ConnectionNumber) { lost = lines; };
    network.RunUntilIdle();  // Bob learns of the end
    Connect();
    alice.fake.socket.onUndelivered = tell;
    ASSERT_EQ(alice.State(), ConnectionState::Connected);
    ASSERT_GT(lost, 0u);
    tell(lost, 1);
  }
  // A second connection, in which the caller never receives the start.
  void SendBeforeTheHandshake() {
    AliceCloses();
    network.RunUntilIdle();
    bob.fake.socket.onDataArrival = nullptr;
    alice.Wait(u"4001");
    alice.fake.dialogs.answers = {Answer::Yes};
    bob.Call(u"alice 4001");
    network.RunUntilIdle();
    ASSERT_EQ(alice.fake.socket.State(), SocketState::Connected);
    SendOnCutNetwork(1);
  }
  std::u16string Waiting() const { return alice.fake.window.lblWaiting.caption; }
  std::u16string ToolTip() const { return alice.fake.window.lblStatus.toolTip; }
  bool LogSays(std::u16string_view text) const {
    return alice.LogOf(u"Bob").find(u"]***** " + std::u16string(text) + u"\r\n") !=
           std::u16string::npos;
  }
};

TEST_F(DeliveryTest, NothingIsShownWhileNothingWaits) {
  alice.wire.SendChatLine(u"{\\rtf1 hello}");
  EXPECT_EQ(Waiting(), u"");
  EXPECT_EQ(ToolTip(), u"Status");
}

TEST_F(DeliveryTest, LinesThatWaitAreCountedUntilTheyAreAcknowledged) {
  SendOnCutNetwork(2);
  EXPECT_EQ(Waiting(), u"2 waiting");
  network.Mend();
  network.RunUntilIdle();
  EXPECT_EQ(Waiting(), u"");
}

TEST_F(DeliveryTest, ActionLinesAreLines) {
  network.Cut();
  alice.wire.SendActionLine(u"{\\rtf1 waves}");
  EXPECT_EQ(Waiting(), u"1 waiting");
}

TEST_F(DeliveryTest, ANicknameIsNoLine) {
  network.Cut();
  alice.wire.SendNickname();
  EXPECT_EQ(Waiting(), u"");
}

TEST_F(DeliveryTest, WaitingSpeaksGreek) {
  alice.state.IsGreek = true;
  SendOnCutNetwork(2);
  EXPECT_EQ(Waiting(), u"2 σε αναμονή");
}

TEST_F(DeliveryTest, ABrokenConnectionTellsWhatWasNotDelivered) {
  SendOnCutNetwork(2);
  BobCloses();
  EXPECT_EQ(Waiting(), u"");
  EXPECT_EQ(ToolTip(), u"Status: 2 lines were not delivered.");
  EXPECT_TRUE(LogSays(u"2 lines were not delivered."));
}

TEST_F(DeliveryTest, OneLineIsNoPlural) {
  SendOnCutNetwork(1);
  BobCloses();
  EXPECT_EQ(ToolTip(), u"Status: 1 line was not delivered.");
}

TEST_F(DeliveryTest, UndeliveredLinesAreToldInGreek) {
  alice.state.IsGreek = true;
  SendOnCutNetwork(2);
  BobCloses();
  EXPECT_EQ(ToolTip(), u"Κατάσταση: 2 γραμμές δεν παραδόθηκαν.");
  EXPECT_TRUE(LogSays(u"2 γραμμές δεν παραδόθηκαν."));
  network.Mend();
  Connect();
  SendOnCutNetwork(1);
  BobCloses();
  EXPECT_EQ(ToolTip(), u"Κατάσταση: 1 γραμμή δεν παραδόθηκε.");
}

TEST_F(DeliveryTest, AConnectionThatTheUserClosesTellsLater) {
  SendOnCutNetwork(3);
  alice.state.CommandLine = u"/CLOSE";
  alice.actions.CloseConnection();
  EXPECT_EQ(Waiting(), u"");
  EXPECT_EQ(ToolTip(), u"Status");
  network.RunUntilIdle();
  EXPECT_EQ(ToolTip(), u"Status: 3 lines were not delivered.");
  EXPECT_TRUE(LogSays(u"3 lines were not delivered."));
  EXPECT_FALSE(alice.state.LogOpen);
}

TEST_F(DeliveryTest, NothingUndeliveredIsNothingToTell) {
  alice.wire.SendChatLine(u"{\\rtf1 hello}");
  BobCloses();
  EXPECT_EQ(ToolTip(), u"Status");
  EXPECT_EQ(alice.LogOf(u"Bob").find(u"not delivered"), std::u16string::npos);
}

TEST_F(DeliveryTest, WhatIsToldLateIsOfTheConversationBefore) {
  SendOnCutNetwork(2);
  AliceCloses();
  BeginAnotherConversation();
  EXPECT_EQ(ToolTip(), u"Status: 2 lines of the conversation before were not delivered.");
  EXPECT_TRUE(LogSays(u"2 lines were not delivered."));
  EXPECT_EQ(alice.LogOf(u"Carol").find(u"not delivered"), std::u16string::npos);
  EXPECT_TRUE(alice.state.LogOpen);
}

TEST_F(DeliveryTest, WhatIsToldLateSpeaksGreek) {
  alice.state.IsGreek = true;
  SendOnCutNetwork(2);
  AliceCloses();
  BeginAnotherConversation();
  EXPECT_EQ(ToolTip(), u"Κατάσταση: 2 γραμμές της προηγούμενης συνομιλίας δεν παραδόθηκαν.");
}

TEST_F(DeliveryTest, OneLineThatIsToldLateIsNoPlural) {
  SendOnCutNetwork(1);
  AliceCloses();
  BeginAnotherConversation();
  EXPECT_EQ(ToolTip(), u"Status: 1 line of the conversation before was not delivered.");
}

TEST_F(DeliveryTest, AConversationThatBreaksAfterOneThatWasToldLateTellsOfItself) {
  SendOnCutNetwork(2);
  AliceCloses();
  BeginAnotherConversation();
  SendOnCutNetwork(3);
  BobCloses();
  EXPECT_EQ(ToolTip(), u"Status: 3 lines were not delivered.");
  EXPECT_NE(alice.LogOf(u"Carol").find(u"]***** 3 lines were not delivered.\r\n"),
            std::u16string::npos);
  EXPECT_FALSE(LogSays(u"3 lines were not delivered."));
}

TEST_F(DeliveryTest, WhatIsToldAfterTheLogFolderHasChangedIsInTheOldOne) {
  SendOnCutNetwork(2);
  AliceCloses();
  alice.fake.files.MakeFolder(u"/elsewhere");
  alice.state.LogFolder = u"/elsewhere/";
  network.RunUntilIdle();
  EXPECT_TRUE(LogSays(u"2 lines were not delivered."));
  EXPECT_FALSE(alice.fake.files.IsFile(u"/elsewhere/Bob.txt"));
}

TEST_F(DeliveryTest, NothingIsToldInTheLogWhenLoggingIsOff) {
  SendOnCutNetwork(2);
  AliceCloses();
  alice.state.LogDialogue = false;
  network.RunUntilIdle();
  EXPECT_EQ(ToolTip(), u"Status: 2 lines were not delivered.");
  EXPECT_FALSE(LogSays(u"2 lines were not delivered."));
}

TEST_F(DeliveryTest, LinesBeforeTheHandshakeAreInNoLog) {
  SendBeforeTheHandshake();
  alice.actions.CancelWaitOrCall();
  network.RunUntilIdle();
  EXPECT_EQ(ToolTip(), u"Status: 1 line was not delivered.");
  EXPECT_FALSE(LogSays(u"1 line was not delivered."));
}

TEST_F(DeliveryTest, LinesOfAConnectionThatBreaksBeforeTheHandshakeAreInNoLog) {
  SendBeforeTheHandshake();
  bob.actions.CancelWaitOrCall();
  network.RunUntilIdle();
  EXPECT_EQ(ToolTip(),
            u"Status: The caller left before the conversation began. Wait again for the next call. "
            u"1 line was not delivered.");
  EXPECT_FALSE(LogSays(u"1 line was not delivered."));
}

TEST_F(DeliveryTest, TheNextConversationBeginsAnew) {
  SendOnCutNetwork(1);
  BobCloses();
  network.Mend();
  Connect();
  EXPECT_EQ(ToolTip(), u"Status");
}

}  // namespace
}  // namespace verlume
