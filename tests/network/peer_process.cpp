#include "network/peer_process.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace verlume::network {
namespace {

constexpr int kEndLimit = 20'000;  // ms

void WriteFile(const QString& path, const QString& text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
  file.write(text.toUtf8());
}

QString ToQt(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

// A folder in memory: a program that waits for a busy disk would read nothing meanwhile.
constexpr auto kFoldersInMemory = "/mnt";

// Gives the calling process a hosts file of its own.
bool UseHosts(const char* file) {
  return ::unshare(CLONE_NEWNS) == 0 && ::mount(file, "/etc/hosts", nullptr, MS_BIND, nullptr) == 0;
}

}  // namespace

void KeepFoldersInMemory() {
  Checked(::unshare(CLONE_NEWNS), "unshare mounts");
  Checked(::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), "keep mounts private");
  Checked(::mount("none", kFoldersInMemory, "tmpfs", 0, nullptr), "mount memory");
}

bool WaitUntil(const std::function<bool()>& condition, int limitMilliseconds) {
  const QDeadlineTimer deadline(limitMilliseconds);
  while (!condition()) {
    if (deadline.hasExpired()) return false;
    QThread::msleep(10);
    QCoreApplication::processEvents();
  }
  return true;
}

PeerProcess::PeerProcess(const NetNamespace& network, char16_t side, const QString& hosts,
                         const QString& settings)
    : side_(side), folder_(QString(kFoldersInMemory) + "/peer-XXXXXX") {
  MakeFolder(hosts, settings);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  process_.setProcessEnvironment(environment);
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.setChildProcessModifier([&network, file = folder_.filePath("hosts").toLocal8Bit()] {
    if (!network.Enter() || !UseHosts(file.constData())) ::_exit(1);
  });
  QObject::connect(&process_, &QProcess::readyReadStandardOutput, [this] { Read(); });
  process_.start(folder_.filePath("verlume_network_peer"), QStringList());
}

PeerProcess::~PeerProcess() {
  process_.closeWriteChannel();
  if (!process_.waitForFinished(kEndLimit)) process_.kill();
  process_.waitForFinished(kEndLimit);
  EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process_.exitCode(), 0);
}

void PeerProcess::MakeFolder(const QString& hosts, const QString& settings) {
  const QDir folder(folder_.path());
  folder.mkdir("macros");
  folder.mkdir("logs");
  QFile::copy(VERLUME_PEER, folder.filePath("verlume_network_peer"));
  WriteFile(folder.filePath("hosts"), "127.0.0.1 localhost\n::1 localhost\n" + hosts);
  WriteFile(folder.filePath("macros/" + ToQt(kMacroName) + ".rtf"),
            "{\\rtf1\\ansi " + ToQt(kMacroText) + "}");
  WriteFile(folder.filePath("Verlume.ini"),
            QString("[General]\r\nLanguage=0\r\nNickname=%1\r\nDateStamp=False\r\n"
                    "TimeStamp=False\r\nMacrosfolder=%2/macros/\r\n%3\r\n"
                    "[Logging]\r\nLogfolder=%2/logs/\r\nLogdialogue=True\r\n")
                .arg(ToQt(FirstNickname(side_.unicode())), folder_.path(), settings));
}

void PeerProcess::Start(const Play& play) {
  hasPlayed_ = false;
  Order(QString("play %1 %2 %3 %4 %5")
            .arg(QChar(play.side))
            .arg(play.seed)
            .arg(play.steps)
            .arg(play.longest)
            .arg(play.longLines));
}

void PeerProcess::Order(const QString& order) {
  process_.write(order.toUtf8() + '\n');
}

void PeerProcess::Read() {
  unread_.append(process_.readAllStandardOutput());
  qsizetype begin = 0;
  for (auto end = unread_.indexOf('\n'); end >= 0; end = unread_.indexOf('\n', begin)) {
    const QString report = QString::fromUtf8(unread_.mid(begin, end - begin));
    const auto blank = report.indexOf(' ');
    Take(report.left(blank), report.mid(blank + 1));
    begin = end + 1;
  }
  unread_.remove(0, begin);
}

void PeerProcess::Take(const QString& what, const QString& text) {
  if (what == "ready") isReady_ = true;
  if (what == "played") hasPlayed_ = true;
  if (what == "status") status_ = text;
  if (what == "lamp") lamp_ = text;
  if (what == "tip") toolTip_ = text;
  if (what == "waiting") waitingSoFar_.append(waiting_ = text);
  if (what == "again") again_ = text;
  if (what == "resend") resend_ = text;
  if (what == "box") boxes_.append(text);
  const bool isOwn = text.startsWith('<' + QString(side_)) || text.startsWith(' ' + QString(side_));
  if (what == "line" && !isOwn) lines_.append(text);
}

QString PeerProcess::Log(const QString& partner) const {
  QFile file(folder_.filePath("logs/" + partner + ".txt"));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace verlume::network
