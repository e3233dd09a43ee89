#include "platform_qt/qt_platform.h"

#include <QApplication>

#include "platform_qt/readable_style.h"

namespace verlume::qt {

void PrepareApplication() {
  QApplication::setApplicationName(QStringLiteral("verlume"));
  QApplication::setDesktopFileName(QStringLiteral("verlume"));
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  // The program decides when it ends, not the last window.
  QApplication::setQuitOnLastWindowClosed(false);
}

QtPlatform::QtPlatform() {
  QApplication::setStyle(new ReadableStyle);
  QtRichTextBox& pane = window_.DialoguePane();
  socket_.mustWait = [&pane] { return pane.IsTakingIn(); };
  pane.onTakenIn = [this] { socket_.GoOn(); };
}

}  // namespace verlume::qt
