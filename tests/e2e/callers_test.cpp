// Callers and peers that vanish without notice while a box is open.
#include <gtest/gtest.h>

#include <QTcpSocket>

#include "copy.h"

namespace verlume::e2e {
namespace {

constexpr int kMarkerLength = 69;

class Callers : public testing::Test {
 protected:
  // Makes the copy wait for a call, and calls it.
  void Call(QTcpSocket& peer) {
    const QString port = NextPort();
    copy.TypeLine("/WAIT " + port);
    ASSERT_TRUE(WaitUntil([&] {
      peer.connectToHost("127.0.0.1", static_cast<quint16>(port.toInt()));
      return peer.waitForConnected(500);
    }));
    ASSERT_TRUE(WaitUntil([&] { return copy.HasWindow("Incoming call"); }));
  }
  void Connect(QTcpSocket& peer) {
    ASSERT_NO_FATAL_FAILURE(Call(peer));
    ASSERT_TRUE(copy.AnswerBox("Incoming call", "Return"));
    ASSERT_TRUE(WaitUntil([&] { return peer.bytesAvailable() > kMarkerLength; }));
    const qsizetype before = Conversations();
    peer.write(peer.readAll().left(kMarkerLength) + QByteArray("CBob\0", 5));
    ASSERT_TRUE(WaitUntil([&] { return Conversations() == before + 1; }));
  }
  qsizetype Conversations() const { return copy.Log("Bob").count("Active connection."); }
  qsizetype Ends() const { return copy.Log("Bob").count("Disconnected."); }
  // Whether the program ends without a question, as it does only while it is idle.
  bool EndsAtOnce() {
    copy.ClickCloseBox();
    return copy.WaitForEnd();
  }

  Copy copy{"Ann", false};
};

TEST_F(Callers, AfterACallerIsKilledItsQuestionCanStillBeAnswered) {
  Copy bob("Bob", false);
  const QString port = NextPort();
  copy.TypeLine("/WAIT " + port);
  bob.TypeLine("/CALL 127.0.0.1 " + port);
  ASSERT_TRUE(WaitUntil([&] { return copy.HasWindow("Incoming call"); }));
  bob.Kill();
  copy.ClickCloseBox();
  EXPECT_TRUE(copy.AnswerBox("Incoming call", "Escape")) << "it stays, and so does the program";
  EXPECT_TRUE(EndsAtOnce());
  EXPECT_EQ(copy.ExitCode(), 0);
}

TEST_F(Callers, AcceptingACallerThatHasLeftDoesNoHarm) {
  QTcpSocket peer;
  ASSERT_NO_FATAL_FAILURE(Call(peer));
  peer.abort();
  EXPECT_TRUE(copy.AnswerBox("Incoming call", "Return"));
  EXPECT_TRUE(EndsAtOnce());
  EXPECT_EQ(copy.ExitCode(), 0);
}

TEST_F(Callers, AfterAPeerVanishesUnderABoxTheUserCanGoOn) {
  const struct {
    const char* command;
    const char* title;
    const char* leave;
  } boxes[] = {
      {"/CANCEL", "Command '/CANCEL'", "Return"}, {"/NICK", "Nickname definition", "Escape"},
      {"/FONT", "Select Font", "Escape"},         {"/LOADDIALOGUE", "Load dialogue", "Escape"},
      {"/HELPABOUT", "About", "Escape"},          {"/EDITMACROS", "Macros", "alt+l"}};
  for (const auto& [command, title, leave] : boxes) {
    SCOPED_TRACE(command);
    QTcpSocket peer;
    ASSERT_NO_FATAL_FAILURE(Connect(peer));
    const qsizetype endsBefore = Ends();
    copy.TypeLine(command);
    ASSERT_TRUE(WaitUntil([&, box = title] { return copy.IsActive(box); }));
    peer.abort();
    EXPECT_TRUE(WaitUntil([&] { return Ends() == endsBefore + 1; })) << "the program goes on";
    copy.ClickCloseBox();
    EXPECT_TRUE(copy.HasWindow(title)) << "and the box stays";
    ASSERT_TRUE(copy.AnswerBox(title, leave));
    ASSERT_TRUE(WaitUntil([&] { return copy.IsActive(); }));
    // A command that was refused or cancelled stays in the command pane.
    copy.PressKeys("ctrl+a");
    copy.PressKeys("BackSpace");
  }
  EXPECT_TRUE(EndsAtOnce());
  EXPECT_EQ(copy.ExitCode(), 0);
}

}  // namespace
}  // namespace verlume::e2e
