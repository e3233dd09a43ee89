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
    program.Start();
    status = platform.Run();
    isLookingUp = platform.IsLookingUp();
  }
  // Nobody waits any more for a host whose name the system may go on looking up for half a minute.
  if (isLookingUp) std::_Exit(status);
  return status;
}
