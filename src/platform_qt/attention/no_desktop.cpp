// Where Qt has no D-Bus there are no notifications, and docks show no number.
#include "platform_qt/attention/desktop_notifications.h"
#include "platform_qt/attention/launcher_entry.h"

namespace verlume::qt {

DesktopNotifications::DesktopNotifications(const QString& program) : program_(program) {}
bool DesktopNotifications::CanShow() {
  return false;
}
void DesktopNotifications::Show(const Notification&) {}
void DesktopNotifications::Withdraw() {}
void DesktopNotifications::OnActionInvoked(uint, const QString&) {}
void DesktopNotifications::OnNotificationClosed(uint, uint) {}
void ShowCountInLauncher(int) {}

}  // namespace verlume::qt
