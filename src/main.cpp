// Verlume: typed conversation between two computers over one direct TCP connection.
#include <QApplication>

#include "platform_qt/qt_platform.h"
#include "shell/program.h"

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  verlume::qt::QtPlatform platform;
  verlume::Program program(platform.View());
  program.Start();
  return platform.Run();
}
