// Verlume: typed conversation between two computers over one direct TCP connection.
#include <QApplication>
#include <cstdlib>

#include "platform_qt/platform.h"
#include "shell/program/program.h"

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  int status = 0;
  bool isLookingUp = false;
  {
    verlume::qt::QtPlatform platform;
    verlume::Program program(platform.View());
    program.Start(QApplication::arguments().value(1).toStdU16String());
    status = platform.Run();
    isLookingUp = platform.IsLookingUp();
  }
  // The system may take another half a minute to look up a host name: an orderly end would wait for
  // it, although the answer is no longer needed.
  if (isLookingUp) std::_Exit(status);
  return status;
}
