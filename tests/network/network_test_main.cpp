// Runs the tests that create network namespaces.
#include <gtest/gtest.h>
#include <sched.h>

#include <QCoreApplication>
#include <cstdio>
#include <system_error>

#include "network/peer_process.h"

namespace {

// Gives the links and the programs on them priority over everything else on the machine: a busy
// processor must not look like a bad link. Where the machine does not allow it, they run as usual.
void GoBeforeOthers() {
  sched_param parameters{};
  parameters.sched_priority = sched_get_priority_min(SCHED_RR);
  sched_setscheduler(0, SCHED_RR, &parameters);
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    verlume::network::KeepFoldersInMemory();
  } catch (const std::system_error&) {
    std::fputs("The network tests need root and /dev/net/tun: not run\n", stderr);
    return 1;
  }
  GoBeforeOthers();
  QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
