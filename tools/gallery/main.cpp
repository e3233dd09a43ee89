// verlume_gallery FOLDER: the program, which takes pictures of all its windows and ends.
// verlume_gallery FOLDER NAME: only of the boxes that open at its start, as pictures named NAME.
// With --dark at the end, in the colours of a dark desktop.
#include <QApplication>

#include "photographer.h"
#include "platform_qt/platform.h"
#include "shell/program/program.h"

namespace {

QPalette DarkPalette() {
  QPalette palette(QColor(0x3A, 0x3A, 0x3A), QColor(0x2B, 0x2B, 0x2B));
  palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  palette.setColor(QPalette::Highlight, QColor(0x3D, 0x8F, 0xD1));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  return palette;
}

}  // namespace

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  QStringList arguments = application.arguments();
  if (arguments.removeAll(QStringLiteral("--dark")) > 0) QApplication::setPalette(DarkPalette());
  if (arguments.size() != 2 && arguments.size() != 3) return 2;

  verlume::qt::QtPlatform platform;
  verlume::Program program(platform.View());
  verlume::gallery::Photographer photographer(platform.View(), arguments[1], arguments.value(2));
  program.Start();
  return platform.Run();
}
