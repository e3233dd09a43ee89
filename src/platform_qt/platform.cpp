#include "platform_qt/platform.h"

#include <QApplication>

#include "platform_qt/os/crash_report.h"
#include "platform_qt/windows/look.h"

namespace verlume::qt {
namespace {

// Before the windows are made, which may be where it fails.
QString Prepared(const QString& ownFolder) {
  ReportCrashes(SettingsFolderFor(ownFolder).toStdString());
  TakeOnLook();
  return ownFolder;
}

}  // namespace

void PrepareApplication() {
  QApplication::setApplicationName(QStringLiteral("verlume"));
  QApplication::setDesktopFileName(QStringLiteral("verlume"));
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  // The program decides when it ends, not the last window.
  QApplication::setQuitOnLastWindowClosed(false);
  AskForLook();
}

QtPlatform::QtPlatform(const QString& ownFolder)
    : application_(QCoreApplication::applicationDirPath(), Prepared(ownFolder)),
      view_{
          .frmMain = window_.View(),
          .frmAbout = about_.View(),
          .frmMacros = macros_.View(),
          .frmPeople = people_.View(),
          .frmVerify = verify_.View(),
          .frmReach = reach_.View(),
          .sckControl = socket_,
          .privacy = socket_.ConnectionPrivacy(),
          .router = router_,
          .network = network_,
          .dialogs = dialogs_,
          .dlgControl = commonDialog_,
          .files = files_,
          .clock = clock_,
          .locale = locale_,
          .application = application_,
          .help = help_,
          .tools = tools_,
          .clipboard = clipboard_,
          .links = links_,
          .attention = attention_,
      } {
  // The program yields while it handles a key. A box that opened then would keep that key waiting
  // until it is answered, and the key would come after what is typed meanwhile.
  socket_.HoldRequestsWhile([this] { return application_.IsYielding(); });
}

void QtPlatform::ComeToFront(const QByteArray& token) {
  constexpr const char* kToken = "XDG_ACTIVATION_TOKEN";  // where Qt looks for it
  MainForm& form = window_.form();
  if (!token.isEmpty()) qputenv(kToken, token);
  form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
  form.raise();
  form.activateWindow();
  qunsetenv(kToken);
  QApplication::alert(&form);
}

bool QtPlatform::IsInFront() const {
  return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

bool QtPlatform::IsFree() {
  return !application_.HasEnded() && !application_.IsYielding() &&
         !QApplication::activeModalWidget() && !QApplication::activePopupWidget() &&
         window_.form().isVisible();
}

}  // namespace verlume::qt
