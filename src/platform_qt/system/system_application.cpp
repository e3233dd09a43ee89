#include <QApplication>
#include <QDir>
#include <QScopedValueRollback>
#include <QStandardPaths>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <string>

#include "platform_qt/convert/text.h"
#include "platform_qt/os/console.h"
#include "platform_qt/os/files.h"
#include "platform_qt/system/system.h"

namespace verlume::qt {
namespace {

constexpr auto kHelpFiles = "*.hlp";
// Next to the executable's folder, and in the system's data folders.
constexpr auto kInstalledBeside = "/../share/verlume";
constexpr auto kInstalledData = "verlume";

bool HoldsHelp(const QString& folder) {
  return !QDir(folder).entryList({kHelpFiles}, QDir::Files).isEmpty();
}

// Events that could still run a handler.
bool ReachesHandlers(QEvent::Type type) {
  switch (type) {
    case QEvent::Timer:
    case QEvent::MetaCall:
    case QEvent::SockAct:
    case QEvent::Close:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Resize:
      return true;
    default:
      return false;
  }
}

}  // namespace

QtApplication::QtApplication() : QtApplication(QCoreApplication::applicationDirPath()) {}

QtApplication::QtApplication(const QString& programFolder, const QString& ownFolder)
    : programFolder_(programFolder), ownFolder_(ownFolder) {}

std::u16string QtApplication::ProgramFolder() const {
  return PathFromQt(programFolder_);
}

std::u16string QtApplication::SettingsFolder() const {
  if (!ownFolder_.isEmpty()) return PathFromQt(ownFolder_);
  if (!keepsSettingsBeside_) keepsSettingsBeside_ = KeepsSettingsBeside();
  if (*keepsSettingsBeside_) return ProgramFolder();
  const QString own = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
  QDir().mkpath(own);
  return PathFromQt(own);
}

bool QtApplication::KeepsSettingsBeside() const {
  // Root may write beside an installed program, too.
  const bool isInstalled = HelpFolder() != ProgramFolder();
  return !isInstalled && CanMakeFilesIn(programFolder_.toStdString());
}

QString SettingsFolderFor(const QString& ownFolder) {
  const QtApplication application(QCoreApplication::applicationDirPath(), ownFolder);
  return ToQt(application.SettingsFolder());
}

std::u16string QtApplication::HelpFolder() const {
  if (HoldsHelp(programFolder_)) return ProgramFolder();
  const QString beside = QDir::cleanPath(programFolder_ + kInstalledBeside);
  if (HoldsHelp(beside)) return PathFromQt(beside);
  // On Windows the settings may lie in such a folder, without the help.
  const QStringList data = QStandardPaths::locateAll(
      QStandardPaths::GenericDataLocation, kInstalledData, QStandardPaths::LocateDirectory);
  const auto found = std::find_if(data.begin(), data.end(), HoldsHelp);
  return found == data.end() ? ProgramFolder() : PathFromQt(*found);
}

void QtApplication::YieldToEvents() {
  // Without keys and clicks: a key handled within the handler of the previous key would be typed
  // before that one. And only for a short time, however fast a peer sends.
  constexpr std::chrono::milliseconds kLimit{20};
  if (hasEnded_) return;
  const QScopedValueRollback<bool> yielding(isYielding_, true);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents,
                                  static_cast<int>(kLimit.count()));
}

void QtApplication::LogError(std::string_view line) {
  LogLine("verlume: " + std::string(line));
}

void QtApplication::End() {
  if (hasEnded_) return;
  hasEnded_ = true;
  QCoreApplication::instance()->installEventFilter(this);
  for (QWidget* window : QApplication::topLevelWidgets()) window->hide();
  QCoreApplication::exit();
}

int QtApplication::Run() {
  return hasEnded_ ? 0 : QCoreApplication::exec();
}

bool QtApplication::eventFilter(QObject*, QEvent* event) {
  return hasEnded_ && ReachesHandlers(event->type());
}

}  // namespace verlume::qt
