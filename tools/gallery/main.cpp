// verlume_gallery FOLDER: the program, which takes pictures of all its windows and ends.
#include <QApplication>

#include "photographer.h"
#include "platform_qt/qt_platform.h"
#include "shell/program.h"

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 2) return 2;

  verlume::qt::QtPlatform platform;
  verlume::Program program(platform.View());
  verlume::gallery::Photographer photographer(arguments[1]);
  program.Start();
  return platform.Run();
}
