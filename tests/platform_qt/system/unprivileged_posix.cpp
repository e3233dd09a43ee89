#include <unistd.h>

#include "platform_qt/system/unprivileged.h"

namespace verlume::qt {

Unprivileged::Unprivileged() {
  constexpr uid_t kNobody = 65534;
  if (::geteuid() == 0) isLowered_ = ::setresuid(kNobody, kNobody, 0) == 0;
}

Unprivileged::~Unprivileged() {
  if (isLowered_ && ::setresuid(0, 0, 0) != 0) ::_exit(1);
}

}  // namespace verlume::qt
