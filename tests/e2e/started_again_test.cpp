// The program started once more in the folder of a copy that runs, and without a display.
#include <gtest/gtest.h>

#include <QTcpSocket>

#include "copy.h"

namespace verlume::e2e {
namespace {

bool AnswersOn(const QString& port) {
  QTcpSocket caller;
  caller.connectToHost("127.0.0.1", port.toUShort());
  return caller.waitForConnected(1000);
}

TEST(StartedAgain, AWaitIsHandedToTheCopyThatRuns) {
  Copy copy("Ann", false);
  const QString port = NextPort();
  EXPECT_EQ(copy.StartAgain({"--wait", port}), 0);
  EXPECT_TRUE(WaitUntil([&] { return AnswersOn(port); }));
  EXPECT_TRUE(copy.AnswerBox("Incoming call", "Return"));
}

TEST(StartedAgain, AnInvitationIsHandedOverAndAsksBeforeItCalls) {
  Copy copy("Άννα", true);
  EXPECT_EQ(copy.StartAgain({"verlume://127.0.0.1:4000/?key=" + QString(43, 'A')}), 0);
  EXPECT_TRUE(copy.AnswerBox("Πρόσκληση", "Escape"));
}

// The exit status, and what is printed.
QString PrintedWithoutADisplay(const QStringList& arguments, const QString& locale) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("DISPLAY");
  environment.remove("WAYLAND_DISPLAY");
  environment.insert("LC_ALL", locale);
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(VERLUME_EXECUTABLE, arguments);
  process.waitForFinished(15000);
  return QString::number(process.exitCode()) + ": " + QString::fromUtf8(process.readAll());
}

TEST(StartedWithoutADisplay, ItSaysWhatItCanDoOrWhatIsWrong) {
  EXPECT_TRUE(PrintedWithoutADisplay({"--help"}, "C").startsWith("0: Usage: verlume"));
  EXPECT_TRUE(PrintedWithoutADisplay({"--help"}, "el_GR.UTF-8").startsWith("0: Χρήση: verlume"));
  EXPECT_TRUE(PrintedWithoutADisplay({"--version"}, "C").startsWith("0: verlume "));
  EXPECT_EQ(PrintedWithoutADisplay({"--nonsense"}, "C"),
            "2: verlume: There is no option '--nonsense'. Try 'verlume --help'.\n");
  EXPECT_EQ(PrintedWithoutADisplay({"--folder", "/proc/x"}, "el_GR.UTF-8"),
            "2: verlume: Ο φάκελλος '/proc/x' δεν μπορεί να δημιουργηθεί ή να γραφτεί.\n");
}

}  // namespace
}  // namespace verlume::e2e
