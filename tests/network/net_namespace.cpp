#include "network/net_namespace.h"

#include <fcntl.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <exception>
#include <fstream>
#include <thread>

#include "network/interface_setup.h"

namespace verlume::network {
namespace {

// On a thread of its own, since the namespace of a thread cannot be changed back.
void RunOnThread(const std::function<void()>& action) {
  std::exception_ptr failure;
  std::thread([&] {
    try {
      action();
    } catch (...) {
      failure = std::current_exception();
    }
  }).join();
  if (failure) std::rethrow_exception(failure);
}

// The congestion control that most machines use, so that the tests take the same time everywhere.
// Where it cannot be chosen, the machine's default is good enough.
void ChooseUsualCongestionControl() {
  std::ofstream("/proc/sys/net/ipv4/tcp_congestion_control") << "cubic";
}

}  // namespace

NetNamespace::NetNamespace() {
  RunOnThread([this] {
    Checked(::unshare(CLONE_NEWNET), "unshare");
    descriptor_ = Descriptor(
        Checked(::open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC), "open a network"));
    ChooseUsualCongestionControl();
    SetUp("lo");
  });
}

void NetNamespace::Run(const std::function<void()>& action) const {
  RunOnThread([&] {
    Checked(::setns(descriptor_.Number(), CLONE_NEWNET), "setns");
    action();
  });
}

bool NetNamespace::Enter() const {
  return ::setns(descriptor_.Number(), CLONE_NEWNET) == 0;
}

}  // namespace verlume::network
