// Tests of permissions must not run as the administrator, to whom nothing is forbidden.
#pragma once

#include <unistd.h>

namespace verlume::qt {

// Nobody's rights as long as this lives, where the tests run as the administrator.
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
