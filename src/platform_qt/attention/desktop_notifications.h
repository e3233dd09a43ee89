// The notifications of the desktop (org.freedesktop.Notifications on the session's D-Bus).
#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "platform/attention.h"

namespace verlume::qt {

// Every call is asynchronous: a desktop that answers late, or never, is not waited for. At most one
// call is under way, and at most one notification is shown. Of what is asked for meanwhile, only
// the last counts.
class DesktopNotifications : public QObject {
  Q_OBJECT

 public:
  // The desktop is told that the notifications are from this program.
  explicit DesktopNotifications(const QString& program);

  // Whether there is a session bus. None is started for this.
  static bool CanShow();

  void Show(const Notification& notification);
  void Withdraw();

  // The user has clicked the notification that is shown.
  std::function<void()> onClicked;
  // The desktop plays no sound with its notifications.
  std::function<void()> onSoundMissing;

 private slots:
  void OnActionInvoked(uint id, const QString& action);
  void OnNotificationClosed(uint id, uint reason);

 private:
  void AskForCapabilities();
  void Send(const QStringList& capabilities);
  void Close();
  void GoOn();

  QString program_;
  std::optional<Notification> wanted_;  // not sent yet
  bool isBusy_ = false;
  bool isWithdrawn_ = false;  // what is being sent
  uint shown_ = 0;            // its id, which is never 0
};

}  // namespace verlume::qt
