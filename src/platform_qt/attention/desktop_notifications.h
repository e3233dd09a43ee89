// The notifications of the desktop, each kind of desktop in a file of its own.
#pragma once

#include <QIcon>
#include <QString>
#include <functional>
#include <memory>

#include "platform/attention.h"

namespace verlume::qt {

// At most one notification is shown. No call waits for the desktop.
class DesktopNotifications {
 public:
  virtual ~DesktopNotifications() = default;

  // Whether the desktop may show notifications. Nothing is started for this.
  static bool CanShow();
  // The desktop is told that the notifications are from this program, with its icon.
  static std::unique_ptr<DesktopNotifications> Make(const QString& program, const QIcon& icon);

  virtual void Show(const Notification& notification) = 0;
  virtual void Withdraw() = 0;

  // The user has clicked the notification that is shown.
  std::function<void()> onClicked;
  // The desktop plays no sound with its notifications.
  std::function<void()> onSoundMissing;
};

}  // namespace verlume::qt
