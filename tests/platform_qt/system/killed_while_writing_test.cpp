// Kills the program again and again while it writes, and checks each time what it leaves on the
// disk.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <iostream>
#include <random>

#include "platform_qt/system/killed_writer.h"
#include "platform_qt/system/program_on_disk.h"

namespace verlume::qt {
namespace {

class KilledWhileWritingTest : public testing::Test {
 protected:
  KilledWhileWritingTest() {
    fake::FakeNetwork network;
    const ProgramOnDisk program(network, folder.path());
    // Longer than one write.
    for (int i = 0; i < 100; ++i) comment += "; " + std::string(60, 'c') + std::to_string(i) + "\n";
    Append("Verlume.ini", comment);
    settings = Read("Verlume.ini");
  }

  std::string Read(const char* name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
  }
  void Append(const char* name, const std::string& text) const {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(text.data(), qint64(text.size()));
  }
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
  // The number of steps it takes to get so far; 0 if stepping is not possible.
  int StepsToReports(int reports) {
    KilledWriter writer(folder.path(), last + 1, KilledWriter::Pace::StepByStep);
    int steps = 0;
    while (writer.ReportsSoFar() < reports && writer.Step()) ++steps;
    if (steps > 0) Check(writer.KillAfterSteps(0));
    return steps;
  }
  void Check(const std::vector<Report>& reports) {
    CheckLog(reports);
    for (const Report& report : reports) last = std::max(last, report.number);
    CheckSettings(reports);
    CheckSaved(reports);
    CheckPeers();
    CheckFolders();
  }
  void KillAtAnyTime() {
    for (int i = 0; i < kTimes && !HasFailure(); ++i) {
      SCOPED_TRACE("kill " + Decimal(i));
      KilledWriter writer(folder.path(), last + 1, KilledWriter::Pace::Free);
      // Every tenth is killed while it starts, the others while they work.
      const bool starts = i % 10 == 0;
      Check(writer.KillAfter(starts ? 0 : 1 + UpTo(10),
                             std::chrono::microseconds(UpTo(starts ? 20000 : 2000))));
    }
    Tell();
    EXPECT_GT(shown, kTimes / 2);
  }
  void Tell() const {
    std::cout << kTimes << " kills in " << folder.path().toStdString() << ": " << shown
              << " lines shown, " << torn << " others in part, " << remnants << " remnants\n";
  }
  static std::string Decimal(int number) { return std::to_string(number); }

  // Every line that was shown is complete in the log, after the lines before it. A line that was
  // being written when the program was killed may be there, or a part of it.
  void CheckLog(const std::vector<Report>& reports) {
    const std::string log = Read("logs/Bob.txt");
    for (const Report& report : reports) {
      if (report.kind != Report::Shown) continue;
      const std::size_t place = log.find(">" + LineText(report.number) + "\r\n", logged);
      ASSERT_NE(place, log.npos) << "line " << report.number;
      logged = place;
      ++shown;
    }
    if (!log.empty() && !log.ends_with("\r\n")) ++torn;
  }
  // The file is exactly the result of one of two consecutive writes.
  void CheckSettings(const std::vector<Report>& reports) {
    for (const Report& report : reports)
      named = report.kind == Report::Named ? report.number : named;
    const std::string now = WithoutCall(Read("Verlume.ini"));
    for (int number = named; number <= last + 1; ++number) {
      if (now == WithNickname(number)) return;
    }
    FAIL() << "nickname " << named << " in " << now.size() << " bytes: " << now.substr(0, 300);
  }
  // The program remembers whom it called: before and after an answer, in one step each.
  static std::string WithoutCall(std::string text) {
    for (const std::string_view line : {"Called1=bob 4000 Bob\r\n", "Called1=bob 4000\r\n"}) {
      const std::size_t place = text.find(line);
      if (place != text.npos) return text.erase(place, line.size());
    }
    return text;
  }
  std::string WithNickname(int number) const {
    std::string text = settings;
    const std::string old = "Nickname=Ann\r\n";
    if (number == 0) return text;
    return text.replace(text.find(old), old.size(), "Nickname=Ann" + Decimal(number) + "\r\n");
  }
  void CheckSaved(const std::vector<Report>& reports) {
    for (const Report& report : reports) saved |= report.kind == Report::Saved;
    for (const Report& report : reports) macroSaved |= report.kind == Report::MacroSaved;
    const std::string dialogue = Read("dialogue.txt");
    EXPECT_TRUE(!saved || (dialogue.starts_with("<Ann") && dialogue.ends_with(".")));
    const std::string macro = Read("macros/macro.rtf");
    EXPECT_TRUE(!macroSaved ||
                (macro.starts_with("{\\rtf1") && macro.find("m\\par\r\n}") != macro.npos))
        << macro.substr(macro.size() - std::min(macro.size(), std::size_t{40}));
  }
  // One meeting, or none yet.
  void CheckPeers() {
    if (!QFile::exists(folder.filePath("Verlume.peers"))) return;
    const std::string peers = Read("Verlume.peers");
    EXPECT_TRUE(peers.starts_with('[') && peers.ends_with("Address=\"bob 4000\"\r\n\r\n")) << peers;
  }
  // The leftover files of interrupted writes do not become more and more.
  void CheckFolders() {
    for (const char* name : {"", "macros/"}) {
      remnants += QFile::exists(folder.path() + "/" + name + ".verlume.new");
    }
    const auto names = [](const QString& path) {
      return QDir(path).entryList(QDir::Files | QDir::Hidden | QDir::System);
    };
    EXPECT_THAT(names(folder.path()), testing::IsSubsetOf({".verlume.new", "Verlume.ini",
                                                           "Verlume.peers", "dialogue.txt"}));
    EXPECT_THAT(names(folder.filePath("macros")),
                testing::IsSubsetOf({".verlume.new", "macro.rtf"}));
    EXPECT_THAT(names(folder.filePath("logs")), testing::IsSubsetOf({"Bob.txt"}));
  }

  static constexpr int kTimes = 100;
  std::mt19937 random{20260307};
  // In memory, if the system has such a folder: what is written survives the process, and the
  // process is killed while working and not while waiting for a disk.
  QTemporaryDir folder{QDir("/dev/shm").exists() ? "/dev/shm/verlume-XXXXXX"
                                                 : QDir::tempPath() + "/verlume-XXXXXX"};
  std::string comment;
  std::string settings;
  std::size_t logged = 0;  // how much of the log has been checked
  int shown = 0;
  int torn = 0;      // lines cut off
  int remnants = 0;  // files cut off
  int named = 0;
  int last = 0;
  bool saved = false;
  bool macroSaved = false;
};

TEST_F(KilledWhileWritingTest, AtAnyTimeNothingShownIsLostAndEveryFileIsWhole) {
  KillAtAnyTime();
}

// Kills it between any two system calls: after the new file was created, after it was written ...
TEST_F(KilledWhileWritingTest, AtAnySystemCallNothingShownIsLostAndEveryFileIsWhole) {
  const int steps = StepsToReports(6);
  if (steps == 0) {
    std::cout << "No process may be watched here: the kills come at any time instead.\n";
    return KillAtAnyTime();
  }
  for (int i = 0; i < kTimes && !HasFailure(); ++i) {
    SCOPED_TRACE("kill " + Decimal(i));
    KilledWriter writer(folder.path(), last + 1, KilledWriter::Pace::StepByStep);
    Check(writer.KillAfterSteps(1 + UpTo(steps)));
  }
  Tell();
  EXPECT_GT(shown, kTimes / 10);
  EXPECT_GT(remnants, 0) << "none was killed while it replaced a file";
}

}  // namespace
}  // namespace verlume::qt
