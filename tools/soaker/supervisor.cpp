#include "supervisor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <QTimer>
#include <algorithm>
#include <iterator>

namespace verlume::soak {
namespace {

constexpr int kMinute = 60'000;  // ms
constexpr int kFewestPeriods = 3;
// In addition to the minutes asked for: for starting and for the last lines.
constexpr int kPatienceWithCopies = 120'000;  // ms

constexpr int kLeastPort = 12'000;
constexpr int kPorts = 20'000;
constexpr auto kProgram = "verlume_soak";
constexpr auto kMacro = "{\\rtf1\\ansi\\ansicpg1253 {\\b Good} {\\i morning}, $r! \\'ea\\'e1}";

void Print(const QString& line) {
  QTextStream(stdout) << line << Qt::endl;
}

bool WriteFile(const QString& path, const QByteArray& content) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

}  // namespace

Supervisor::Supervisor(double minutes) {
  const int total = static_cast<int>(minutes * kMinute);
  periods_ = std::max(kFewestPeriods, total / kMinute);
  periodMilliseconds_ = total / periods_;
  copies_[0].name = QStringLiteral("Ann");
  copies_[1].name = QStringLiteral("Bob");
}

int Supervisor::Run() {
  if (!PrepareFolders()) {
    Print(QStringLiteral("The folders of the copies cannot be made."));
    return 2;
  }
  Print(TableHead());
  const int port = kLeastPort + static_cast<int>(QCoreApplication::applicationPid() % kPorts);
  for (int side : {1, 0}) Start(side, port);
  QTimer::singleShot(periods_ * periodMilliseconds_ + kPatienceWithCopies,
                     QCoreApplication::instance(), [this] {
                       for (Copy& copy : copies_) copy.process.kill();
                     });
  QCoreApplication::exec();

  QStringList complaints;
  for (const Copy& copy : copies_) complaints << ComplaintsAbout(copy);
  for (const QString& complaint : complaints) Print(complaint);
  Print(complaints.isEmpty() ? QStringLiteral("PASSED") : QStringLiteral("FAILED"));
  return complaints.isEmpty() ? 0 : 1;
}

// Each copy runs in a folder of its own, and so has its own settings.
bool Supervisor::PrepareFolders() const {
  const QDir root(folder_.path());
  const QDir built(QCoreApplication::applicationDirPath());
  if (!WriteFile(PagePath(), QByteArray(sizeof(SharedPage), '\0'))) return false;
  for (const Copy& copy : copies_) {
    const QDir own(root.filePath(copy.name));
    if (!root.mkpath(copy.name + QStringLiteral("/macros")) || !own.mkdir(QStringLiteral("logs")) ||
        !QFile::copy(QCoreApplication::applicationFilePath(), own.filePath(kProgram)) ||
        !WriteFile(own.filePath(QStringLiteral("macros/greet.rtf")), kMacro)) {
      return false;
    }
    for (const QString& help : built.entryList({QStringLiteral("*.hlp")})) {
      QFile::copy(built.filePath(help), own.filePath(help));
    }
    const QString settings = QStringLiteral(
                                 "[General]\r\nNickname=%1 0\r\nMacrosfolder=%2/macros/\r\n"
                                 "[Logging]\r\nLogfolder=%2/logs/\r\nLogdialogue=True\r\n")
                                 .arg(copy.name.toLower().at(0))
                                 .arg(own.path());
    if (!WriteFile(own.filePath(QStringLiteral("Verlume.ini")), settings.toUtf8())) return false;
  }
  return true;
}

void Supervisor::Start(int side, int port) {
  Copy& copy = copies_[side];
  copy.process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  QObject::connect(&copy.process, &QProcess::readyReadStandardOutput,
                   [this, &copy] { Read(copy); });
  QObject::connect(&copy.process, &QProcess::stateChanged, [this](QProcess::ProcessState state) {
    if (state == QProcess::NotRunning) EndWithTheCopies();
  });
  copy.process.start(
      QDir(folder_.filePath(copy.name)).filePath(kProgram),
      {QStringLiteral("copy"), PagePath(), QString::number(side), QString::number(port),
       QString::number(periods_), QString::number(periodMilliseconds_)});
}

// When one copy has ended, the other has nothing left to do.
void Supervisor::EndWithTheCopies() {
  const auto hasEnded = [](const Copy& copy) {
    return copy.process.state() == QProcess::NotRunning;
  };
  if (std::all_of(std::begin(copies_), std::end(copies_), hasEnded))
    return QCoreApplication::quit();
  for (Copy& copy : copies_) {
    const bool hasFailed =
        copy.process.exitStatus() != QProcess::NormalExit || copy.process.exitCode() != 0;
    if (hasEnded(copy) && hasFailed) {
      for (Copy& each : copies_) each.process.kill();
    }
  }
}

void Supervisor::Read(Copy& copy) {
  while (copy.process.canReadLine()) {
    const QString line = QString::fromUtf8(copy.process.readLine()).trimmed();
    Period period;
    if (!ParsePeriod(line, period)) {
      Print(copy.name + QStringLiteral(" ") + line);
      continue;
    }
    copy.periods.push_back(period);
    Print(TableRow(copy.name, copy.periods.size(), period));
  }
}

QStringList Supervisor::ComplaintsAbout(const Copy& copy) const {
  QStringList complaints = Complaints(copy.periods);
  if (copy.process.exitStatus() != QProcess::NormalExit || copy.process.exitCode() != 0) {
    complaints << QStringLiteral("It ended with status %1.").arg(copy.process.exitCode());
  } else if (static_cast<int>(copy.periods.size()) != periods_) {
    complaints
        << QStringLiteral("It reported %1 times, not %2.").arg(copy.periods.size()).arg(periods_);
  }
  for (QString& complaint : complaints) complaint.prepend(copy.name + QStringLiteral(": "));
  return complaints;
}

}  // namespace verlume::soak
