// verlume_network_peer: the program, driven by its standard input.
#include <sched.h>

#include <QApplication>

#include "network/peer.h"
#include "platform_qt/platform.h"
#include "shell/program/program.h"

namespace {

// A thread inherits what its process may do: the one that reads and sends keeps going before
// others, but a window is as slow as it is under a user's eyes, and real-time work of that size
// would make the system hold up both.
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
