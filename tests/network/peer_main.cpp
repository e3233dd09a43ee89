// verlume_network_peer: the program, driven by its standard input.
#include <QApplication>

#include "network/peer.h"
#include "platform_qt/qt_platform.h"
#include "shell/program.h"

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  verlume::qt::QtPlatform platform;
  verlume::Program program(platform.View());
  program.Start();
  verlume::network::Peer peer(platform.View());
  return platform.Run();
}
