// verlume_network_peer: the program, driven by its standard input.
#include <sched.h>

#include <QApplication>

#include "network/peer.h"
#include "platform_qt/platform.h"
#include "shell/program/program.h"

namespace {

// Threads inherit their priority: the network thread keeps the one it was given, but the window
// must be as slow as for a user; at real-time priority its work would hold up the network thread as
// well.
void LetOthersGoFirst() {
  const sched_param none{};
  sched_setscheduler(0, SCHED_OTHER, &none);
}

}  // namespace

int main(int argc, char* argv[]) {
  verlume::qt::PrepareApplication();
  QApplication application(argc, argv);
  verlume::qt::QtPlatform platform;
  LetOthersGoFirst();
  verlume::Program program(platform.View());
  program.Start();
  verlume::network::Peer peer(platform.View());
  return platform.Run();
}
