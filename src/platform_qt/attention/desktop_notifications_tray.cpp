#include "platform_qt/attention/desktop_notifications.h"
#include "platform_qt/attention/tray_notifications.h"

namespace verlume::qt {

bool DesktopNotifications::CanShow() {
  return QSystemTrayIcon::isSystemTrayAvailable() && QSystemTrayIcon::supportsMessages();
}

std::unique_ptr<DesktopNotifications> DesktopNotifications::Make(const QString& program,
                                                                 const QIcon& icon) {
  return std::make_unique<TrayNotifications>(program, icon);
}

}  // namespace verlume::qt
