// Notifications above the task bar's tray, as Windows has them.
#pragma once

#include <QSystemTrayIcon>

#include "platform_qt/attention/desktop_notifications.h"

namespace verlume::qt {

// What Windows has room for.
inline constexpr qsizetype kLongestTrayTitle = 63;
inline constexpr qsizetype kLongestTrayText = 255;

// The text, or its start and "…" if it is longer. No character is cut in two.
QString CutForTray(const QString& text, qsizetype most);

// The program has an icon in the tray only while a notification is shown or waits in the list of
// those that were missed: until it is clicked or withdrawn. A click on the icon counts as well.
// Whether it is heard is for Windows to decide.
class TrayNotifications : public DesktopNotifications {
 public:
  TrayNotifications(const QString& program, const QIcon& icon);

  void Show(const Notification& notification) override;
  void Withdraw() override;

  const QSystemTrayIcon& Icon() const { return tray_; }

 private:
  void TakeClick();

  QSystemTrayIcon tray_;
};

}  // namespace verlume::qt
