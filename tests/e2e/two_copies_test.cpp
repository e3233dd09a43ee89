#include <gtest/gtest.h>

#include <QProcess>
#include <QTcpSocket>

#include "copy.h"

namespace verlume::e2e {
namespace {

class TwoCopies : public testing::Test {
 protected:
  void Connect() {
    const QString port = NextPort();
    ann.TypeLine("/ΑΝΑΜΟΝΉ " + port);
    bob.TypeLine("/CALL 127.0.0.1 " + port);
    ASSERT_TRUE(ann.AnswerBox("Εισερχόμενη κλήση", "Return"));
    ASSERT_TRUE(WaitUntil([&] {
      return bob.Log("Άννα").contains("Active connection.") &&
             ann.Log("Bob").contains("Ενεργός σύνδεση.");
    }));
  }

  Copy ann{"Άννα", true};
  Copy bob{"Bob", false};
};

TEST_F(TwoCopies, HoldAConversationInGreekAndEnglish) {
  Connect();
  ann.TypeLine("Καλημέρα, $r!");
  ASSERT_TRUE(WaitUntil([&] { return bob.Log("Άννα").contains("<Άννα>Καλημέρα, Bob!"); }));
  bob.TypeLine("Good morning, $r!");
  ASSERT_TRUE(WaitUntil([&] { return ann.Log("Bob").contains("<Bob>Good morning, Άννα!"); }));
  bob.TypeLine("/me waves");
  ASSERT_TRUE(WaitUntil([&] { return ann.Log("Bob").contains("] Bob waves"); }));

  const QString expected = "<Άννα>Καλημέρα, Bob!\n<Bob>Good morning, Άννα!\n Bob waves";
  EXPECT_EQ(ann.Dialogue().toStdString(), expected.toStdString());
  EXPECT_EQ(bob.Dialogue().toStdString(), expected.toStdString());

  bob.TypeLine("/CLOSE");
  EXPECT_TRUE(WaitUntil([&] { return ann.Log("Bob").contains("Αποσυνδέθηκε."); }));
  EXPECT_TRUE(WaitUntil([&] { return bob.Log("Άννα").contains("Disconnected."); }));
}

TEST_F(TwoCopies, ExitCommandEndsTheProgramAfterItsQuestion) {
  Connect();
  bob.TypeLine("/EXIT");
  EXPECT_TRUE(bob.AnswerBox("Command '/EXIT'", "Return"));  // No is the default
  EXPECT_FALSE(bob.HasEnded());

  bob.TypeLine("/EXIT");
  EXPECT_TRUE(bob.AnswerBox("Command '/EXIT'", "alt+y"));
  EXPECT_TRUE(bob.WaitForEnd());
  EXPECT_EQ(bob.ExitCode(), 0);
  EXPECT_TRUE(WaitUntil([&] { return ann.Log("Bob").contains("Αποσυνδέθηκε."); }));
}

TEST_F(TwoCopies, LineFlagsTheTaskBarEntryAndLeavesTheActiveWindowAlone) {
  Connect();
  for (const char* line : {"first", "second"}) {
    // A program learns only a moment later that its window is no longer active; a line that arrives
    // before then flags nothing.
    EXPECT_TRUE(WaitUntil([&] {
      bob.TypeLine(line);
      return WaitUntil([&] { return ann.HasState("DEMANDS_ATTENTION"); }, 500);
    })) << line;
    EXPECT_TRUE(ann.Log("Bob").contains(line));
    EXPECT_TRUE(bob.IsActive());
    ann.Activate();
    EXPECT_TRUE(WaitUntil([&] { return !ann.HasState("DEMANDS_ATTENTION"); })) << line;
  }
}

TEST_F(TwoCopies, CallLeavesTheActiveWindowAlone) {
  // A program learns only a moment later that its window is no longer active, and a call before
  // then takes the keyboard. So each attempt calls later than the one before.
  int looks = 0;
  EXPECT_TRUE(WaitUntil([&] {
    const QString port = NextPort();
    ann.TypeLine("/ΑΝΑΜΟΝΉ " + port);
    bob.Activate();
    looks += 20;
    for (int look = 0; look < looks; ++look) EXPECT_TRUE(bob.IsActive());
    QTcpSocket caller;
    EXPECT_TRUE(WaitUntil([&] {
      caller.connectToHost("127.0.0.1", static_cast<quint16>(port.toInt()));
      return caller.waitForConnected(500);
    }));
    EXPECT_TRUE(WaitUntil([&] { return ann.HasWindow("Εισερχόμενη κλήση"); }));
    const bool leftAlone = bob.IsActive();
    EXPECT_TRUE(ann.AnswerBox("Εισερχόμενη κλήση", "Escape")) << "the user may go to it";
    return leftAlone;
  }));
}

TEST_F(TwoCopies, LineUnderAnActiveAboutBoxLeavesItTheKeyboard) {
  Connect();
  ann.TypeLine("/HELPABOUT");
  ASSERT_TRUE(WaitUntil([&] { return ann.IsActive("Σχετικά"); }));
  bob.TypeLineInBackground("hello");
  ASSERT_TRUE(WaitUntil([&] { return ann.Log("Bob").contains("<Bob>hello"); }));
  bob.TypeLineInBackground("/CLOSE");
  ASSERT_TRUE(WaitUntil([&] { return ann.Log("Bob").contains("Αποσυνδέθηκε."); }));
  EXPECT_TRUE(ann.IsActive("Σχετικά"));
  EXPECT_TRUE(ann.AnswerBox("Σχετικά", "Escape"));
}

TEST(OneCopy, GoesAboveOthersAndBackWithoutLeavingTheScreen) {
  Copy copy("Ann", false);
  QProcess watch;
  // Printed line by line, also into a pipe.
  watch.start("stdbuf", {"-oL", "xprop", "-spy", "-id", copy.Window(), "WM_STATE"});
  QString changes;
  const auto watched = [&] {
    watch.waitForReadyRead(1);
    changes += QString::fromUtf8(watch.readAllStandardOutput());
    return changes.count("WM_STATE(");
  };
  ASSERT_TRUE(WaitUntil([&] { return watched() == 1; })) << "how it is at first";
  copy.TypeLine("/ALWAYSONTOP");
  EXPECT_TRUE(WaitUntil([&] { return copy.HasState("ABOVE"); }));
  copy.TypeLine("/NOTALWAYSONTOP");
  EXPECT_TRUE(WaitUntil([&] { return !copy.HasState("ABOVE"); }));
  EXPECT_TRUE(copy.IsActive());
  EXPECT_EQ(watched(), 1) << changes.toStdString();
  watch.kill();
  watch.waitForFinished(5000);
}

TEST(OneCopy, CopyrightCommandOpensTheAboutBoxWithoutSystemInfo) {
  Copy copy("Ann", false);
  copy.ClickAt(0.82, 0.972);
  ASSERT_TRUE(WaitUntil([&] { return copy.IsActive("About"); }));
  copy.PressKeys("Tab");
  copy.PressKeys("space");
  EXPECT_TRUE(copy.AnswerBox("System information", "Return"));
  EXPECT_TRUE(WaitUntil([&] { return copy.IsActive("About"); })) << "it stays open";
  EXPECT_TRUE(copy.AnswerBox("About", "Escape"));
  EXPECT_TRUE(WaitUntil([&] { return copy.IsActive(); }));
  copy.TypeLine("/EXIT");
  EXPECT_TRUE(copy.WaitForEnd());
  EXPECT_EQ(copy.ExitCode(), 0);
}

TEST(OneCopy, SettingsAreWrittenBesideTheProgramAtTheChange) {
  Copy copy("Ann", false);
  copy.TypeLine("/NICK Ann of the North");
  EXPECT_TRUE(WaitUntil([&] { return copy.Settings().contains("Nickname=Ann of the North\r\n"); }));
  copy.TypeLine("/GREEK");
  EXPECT_TRUE(WaitUntil([&] { return copy.Settings().contains("Language=1\r\n"); }));
  copy.TypeLine("/EXIT");
  EXPECT_TRUE(copy.WaitForEnd());
  EXPECT_EQ(copy.ExitCode(), 0);
}

TEST(OneCopy, DetailedHelpOpensByCommandAndClosesByEscape) {
  Copy copy("Ann", true);
  copy.TypeLine("/HELPDETAILED");
  EXPECT_TRUE(copy.AnswerBox("Βοήθεια του Verlume", "Escape"));
  EXPECT_FALSE(copy.HasEnded());
}

}  // namespace
}  // namespace verlume::e2e
