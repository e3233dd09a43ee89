// verlume_gallery FOLDER: the program, which takes pictures of all its windows and ends.
// verlume_gallery FOLDER NAME: only of the boxes that open at its start, as pictures named NAME.
#include <QApplication>

#include "photographer.h"
#include "platform_qt/platform.h"
#include "shell/program/program.h"

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 2 && arguments.size() != 3) return 2;

  verlume::qt::QtPlatform platform;
  verlume::Program program(platform.View());
  verlume::gallery::Photographer photographer(arguments[1], arguments.value(2));
  program.Start();
  return platform.Run();
}
