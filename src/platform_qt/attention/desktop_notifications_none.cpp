// Where Qt has no D-Bus there are no notifications.
#include "platform_qt/attention/desktop_notifications.h"

namespace verlume::qt {

bool DesktopNotifications::CanShow() {
  return false;
}

std::unique_ptr<DesktopNotifications> DesktopNotifications::Make(const QString&, const QIcon&) {
  return nullptr;
}

}  // namespace verlume::qt
