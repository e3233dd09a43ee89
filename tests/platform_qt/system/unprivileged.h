// Tests of permissions must not run as administrator, who may do everything.
#pragma once

#include <unistd.h>

namespace verlume::qt {

// If the tests run as administrator, takes on the rights of the user "nobody" for its lifetime.
class Unprivileged {
 public:
  Unprivileged() {
    if (::geteuid() == 0) isLowered_ = ::setresuid(kNobody, kNobody, 0) == 0;
  }
  ~Unprivileged() {
    if (isLowered_ && ::setresuid(0, 0, 0) != 0) ::_exit(1);
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  bool isLowered_ = false;
};

}  // namespace verlume::qt
