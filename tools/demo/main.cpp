// verlume_demo SCRIPT LEFT TOP: the program with its window at that place, operated by a script.
#include <QApplication>
#include <QMainWindow>

#include "platform_qt/platform.h"
#include "player.h"
#include "shell/program/program.h"

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 4) return 2;

  verlume::qt::QtPlatform platform;
  verlume::Program program(platform.View());
  program.Start();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("frmMain")) {
      window->move(arguments[2].toInt(), arguments[3].toInt());
    }
  }
  verlume::demo::Player player(arguments[1]);
  return platform.Run();
}
