#include "copy.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>
#include <algorithm>

namespace verlume::e2e {
namespace {

// Where the middle of each pane is, as a part of the window's height.
constexpr double kDialoguePane = 0.25;
constexpr double kCommandPane = 0.58;

// Runs a tool until it ends and returns its output.
QString Run(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  process.waitForFinished(10000);
  return QString::fromUtf8(process.readAllStandardOutput());
}

QString ReadFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void PutOnClipboard(const QString& text) {
  QProcess xclip;
  // The child process that serves the clipboard must not keep our pipes open.
  xclip.setStandardOutputFile(QProcess::nullDevice());
  xclip.setStandardErrorFile(QProcess::nullDevice());
  xclip.start("xclip", {"-selection", "clipboard", "-i"});
  xclip.write(text.toUtf8());
  xclip.closeWriteChannel();
  xclip.waitForFinished(10000);
}

}  // namespace

bool WaitUntil(const std::function<bool()>& condition, int limitMilliseconds) {
  const QDeadlineTimer deadline(limitMilliseconds);
  while (!condition()) {
    if (deadline.hasExpired()) return false;
    QThread::msleep(20);
    QCoreApplication::processEvents();
  }
  return true;
}

QString NextPort() {
  static int port = 20000 + static_cast<int>(QCoreApplication::applicationPid() % 10000);
  return QString::number(port++);
}

Copy::Copy(const QString& nickname, bool isGreek) {
  const QDir folder(folder_.path());
  folder.mkdir("macros");
  folder.mkdir("logs");
  QFile::copy(VERLUME_EXECUTABLE, folder.filePath("verlume"));
  const QDir built = QFileInfo(VERLUME_EXECUTABLE).dir();
  for (const QString& help : built.entryList({"*.hlp"})) {
    QFile::copy(built.filePath(help), folder.filePath(help));
  }
  QFile settings(folder.filePath("Verlume.ini"));
  if (settings.open(QIODevice::WriteOnly)) {
    settings.write(QString("[General]\r\nLanguage=%1\r\nNickname=%2\r\nDateStamp=False\r\n"
                           "TimeStamp=False\r\nMacrosfolder=%3/macros/\r\n"
                           "[Logging]\r\nLogfolder=%3/logs/\r\nLogdialogue=True\r\n")
                       .arg(isGreek ? "1" : "0", nickname, folder_.path())
                       .toUtf8());
    settings.close();
  }
  // What a copy that is killed leaves behind goes with the folder.
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("XDG_RUNTIME_DIR", folder_.path());
  program_.setProcessEnvironment(environment);
  program_.setProcessChannelMode(QProcess::ForwardedChannels);
  Restart();
}

void Copy::Restart() {
  program_.start(folder_.filePath("verlume"), QStringList());
  WaitUntil([this] { return !(window_ = FindWindow("Verlume")).isEmpty(); });
}

Copy::~Copy() {
  program_.terminate();
  if (!program_.waitForFinished(5000)) program_.kill();
  program_.waitForFinished(5000);
}

QString Copy::FindWindow(const QString& title) const {
  const QStringList found =
      Run("xdotool", {"search", "--all", "--onlyvisible", "--pid",
                      QString::number(program_.processId()), "--name", "^" + title + "$"})
          .split('\n', Qt::SkipEmptyParts);
  return found.isEmpty() ? QString() : found.last();
}

void Copy::Activate() {
  Run("xdotool", {"windowactivate", "--sync", window_});
}

void Copy::TypeLine(const QString& line) {
  Activate();
  if (std::all_of(line.begin(), line.end(), [](QChar c) { return c.unicode() < 0x80; })) {
    Type(line);
  } else {
    // The X server has no keys for these characters, so they are pasted.
    PutOnClipboard(line);
    PressKeys("ctrl+v");
  }
  PressKeys("Return");
}

void Copy::Type(const QString& text) {
  Activate();
  Run("xdotool", {"type", "--delay", "10", "--", text});
}

void Copy::TypeLineInBackground(const QString& line) {
  Run("xdotool", {"type", "--window", window_, "--delay", "10", "--", line});
  Run("xdotool", {"key", "--window", window_, "Return"});
}

bool Copy::HasState(const QString& state) const {
  return Run("xprop", {"-id", window_, "_NET_WM_STATE"}).contains("_NET_WM_STATE_" + state);
}

bool Copy::IsActive(const QString& title) const {
  const QString active = Run("xdotool", {"getactivewindow"}).trimmed();
  return !active.isEmpty() && active == FindWindow(title);
}

void Copy::PressKeys(const QString& keys) {
  Run("xdotool", {"key", keys});
}

bool Copy::AnswerBox(const QString& title, const QString& key) {
  QString box;
  if (!WaitUntil([&] { return !(box = FindWindow(title)).isEmpty(); })) return false;
  // A box that the user did not ask for is answered only by a key after a second without one, and
  // sometimes the first such key only moves the keyboard to it.
  constexpr int kRest = 1500;
  return WaitUntil([&] {
    Run("xdotool", {"windowactivate", "--sync", box, "key", key});
    return WaitUntil([&] { return FindWindow(title).isEmpty(); }, kRest);
  });
}

bool Copy::TypeInto(const QString& title, const QString& text) {
  QString box;
  if (!WaitUntil([&] { return !(box = FindWindow(title)).isEmpty(); })) return false;
  Run("xdotool", {"windowactivate", "--sync", box, "type", "--delay", "10", "--", text});
  return true;
}

void Copy::ClickAt(double across, double down) {
  Activate();
  const QSize size = Size();
  ClickAtPixel(int(size.width() * across), int(size.height() * down));
}

void Copy::ClickCloseBox() {
  constexpr int kFromTheRight = 8;
  constexpr int kAboveTheWindow = 10;
  ClickAtPixel(Size().width() - kFromTheRight, -kAboveTheWindow);
}

std::optional<int> Copy::StartAgain(const QStringList& arguments) const {
  QProcess again;
  again.setProcessEnvironment(program_.processEnvironment());
  again.setProcessChannelMode(QProcess::ForwardedChannels);
  again.start(folder_.filePath("verlume"), arguments);
  if (again.waitForFinished(15000)) return again.exitCode();
  again.kill();
  again.waitForFinished(5000);
  return std::nullopt;
}

void Copy::Kill() {
  program_.kill();
  program_.waitForFinished(5000);
}

QSize Copy::Size() const {
  QSize size;
  for (const QString& line :
       Run("xdotool", {"getwindowgeometry", "--shell", window_}).split('\n')) {
    if (line.startsWith("WIDTH=")) size.setWidth(line.mid(6).toInt());
    if (line.startsWith("HEIGHT=")) size.setHeight(line.mid(7).toInt());
  }
  return size;
}

void Copy::ClickAtPixel(int x, int y) {
  Run("xdotool", {"mousemove", "--window", window_, "--", QString::number(x), QString::number(y),
                  "click", "1"});
}

QString Copy::Dialogue() {
  PutOnClipboard("");
  ClickAt(0.5, kDialoguePane);
  PressKeys("ctrl+a");
  PressKeys("ctrl+c");
  QString text;
  WaitUntil([&] {
    text = Run("xclip", {"-selection", "clipboard", "-o"});
    return !text.isEmpty();
  });
  ClickAt(0.5, kCommandPane);
  return text;
}

QString Copy::Log(const QString& partner) const {
  return ReadFile(LogPath(partner));
}

QString Copy::EndOfLog(const QString& partner) const {
  QFile file(LogPath(partner));
  if (!file.open(QIODevice::ReadOnly)) return {};
  file.seek(std::max<qint64>(0, file.size() - 1024));
  return QString::fromUtf8(file.readAll());
}

QString Copy::LogPath(const QString& partner) const {
  return folder_.filePath("logs/" + partner + ".txt");
}

QString Copy::Settings() const {
  return ReadFile(folder_.filePath("Verlume.ini"));
}

QString Copy::Macro(const QString& name) const {
  return ReadFile(folder_.filePath("macros/" + name + ".rtf"));
}

}  // namespace verlume::e2e
