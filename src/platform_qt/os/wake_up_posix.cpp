#include <sys/eventfd.h>

#include "platform_qt/os/wake_up.h"

namespace verlume::qt {

WakeUp::WakeUp() : waits_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

void WakeUp::Ring() const {
  ::eventfd_write(static_cast<int>(Number()), 1);
}

void WakeUp::Clear() const {
  eventfd_t count = 0;
  ::eventfd_read(static_cast<int>(Number()), &count);
}

}  // namespace verlume::qt
