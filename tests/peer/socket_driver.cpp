// verlume_socket_driver KEYFILE: the program's network layer without a window, for the tests in
// Python. It ends with "quit" and with its standard input.
#include <unistd.h>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <QStringList>

#include "peer/driver.h"

namespace {

// Commands come whole or in pieces.
void ReadCommands(QByteArray& waiting, verlume::peer::Driver& driver) {
  char buffer[65536];
  const auto count = read(STDIN_FILENO, buffer, sizeof buffer);
  if (count <= 0) {
    QCoreApplication::quit();
    return;
  }
  waiting.append(buffer, static_cast<int>(count));
  for (qsizetype end = waiting.indexOf('\n'); end >= 0; end = waiting.indexOf('\n')) {
    const QString line = QString::fromLatin1(waiting.left(end));
    waiting.remove(0, end + 1);
    driver.Do(line);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  QCoreApplication application(argc, argv);
  verlume::peer::Driver driver(QCoreApplication::arguments().value(1));
  QByteArray waiting;
  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated,
                   [&waiting, &driver] { ReadCommands(waiting, driver); });
  return QCoreApplication::exec();
}
