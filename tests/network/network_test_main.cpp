// Runs the tests that make networks of their own.
#include <gtest/gtest.h>
#include <sched.h>

#include <QCoreApplication>
#include <cstdio>
#include <system_error>

#include "network/peer_process.h"

namespace {

// The links and the programs on them go before whatever else the machine does: what is tested is
// what a network does to a conversation, not what a processor does that is busy elsewhere. Where
// the machine does not allow it, they compete.
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
