// verlume_soak MINUTES: two copies of the program talk for that long. Prints a table of what they
// cost and whether that grows.
#include <QApplication>
#include <QFile>
#include <QTextStream>

#include "chatterbox.h"
#include "platform_qt/platform.h"
#include "shell/program/program.h"
#include "supervisor.h"

namespace verlume::soak {
namespace {

// verlume_soak copy PAGE SIDE PORT PERIODS MILLISECONDS: one of the two.
int RunCopy(int argc, char* argv[]) {
  qt::PrepareApplication();
  QApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 7) return 2;
  QFile file(arguments[2]);
  if (!file.open(QIODevice::ReadWrite)) return 2;
  auto* page = reinterpret_cast<SharedPage*>(file.map(0, sizeof(SharedPage)));
  if (!page) return 2;

  qt::QtPlatform platform;
  Program program(platform.View());
  program.Start();
  Chatterbox chatterbox(
      platform.View(), program, *page,
      {arguments[3].toInt(), arguments[4].toInt(), arguments[5].toInt(), arguments[6].toInt()});
  return platform.Run();
}

int RunBoth(int argc, char* argv[]) {
  QCoreApplication application(argc, argv);
  const double minutes = argc == 2 ? QByteArray(argv[1]).toDouble() : 0;
  if (minutes <= 0) {
    QTextStream(stderr) << "verlume_soak MINUTES" << Qt::endl;
    return 2;
  }
  return Supervisor(minutes).Run();
}

}  // namespace
}  // namespace verlume::soak

int main(int argc, char* argv[]) {
  const bool isCopy = argc > 1 && QByteArray(argv[1]) == "copy";
  return isCopy ? verlume::soak::RunCopy(argc, argv) : verlume::soak::RunBoth(argc, argv);
}
