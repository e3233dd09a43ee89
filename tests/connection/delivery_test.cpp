// What the user is told of lines that have not arrived.
#include <gtest/gtest.h>

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

TEST_F(DeliveryTest, TheNextConversationBeginsAnew) {
  SendOnCutNetwork(1);
  BobCloses();
  network.Mend();
  Connect();
  EXPECT_EQ(ToolTip(), u"Status");
}

}  // namespace
}  // namespace verlume
