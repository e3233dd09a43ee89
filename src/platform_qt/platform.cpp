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
  QApplication::setStyle(new ReadableStyle);
  // The program yields while it handles a key. A box that opened then would keep that key waiting
  // until it is answered, and the key would come after what is typed meanwhile.
  socket_.HoldRequestsWhile([this] { return application_.IsYielding(); });
}

}  // namespace verlume::qt
