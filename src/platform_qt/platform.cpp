#include "platform_qt/platform.h"

#include <QApplication>

#include "platform_qt/windows/readable_style.h"

namespace verlume::qt {

void PrepareApplication() {
  QApplication::setApplicationName(QStringLiteral("verlume"));
  QApplication::setDesktopFileName(QStringLiteral("verlume"));
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  // The program decides when it ends, not the last window.
  QApplication::setQuitOnLastWindowClosed(false);
}

QtPlatform::QtPlatform()
    : view_{
          .frmMain = window_.View(),
          .frmAbout = about_.View(),
          .frmMacros = macros_.View(),
          .sckControl = socket_,
          .dialogs = dialogs_,
          .dlgControl = commonDialog_,
          .files = files_,
          .clock = clock_,
          .locale = locale_,
          .application = application_,
          .help = help_,
          .tools = tools_,
      } {
  QApplication::setStyle(new ReadableStyle);
}

}  // namespace verlume::qt
