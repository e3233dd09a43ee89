// Notifications as freedesktop.org describes them (org.freedesktop.Notifications on the session's
// D-Bus).
#pragma once

#include <QObject>
#include <optional>

#include "platform_qt/attention/desktop_notifications.h"

namespace verlume::qt {

// Every call is asynchronous: a desktop that answers late, or never, is not waited for. At most one
// call is under way. Of what is asked for meanwhile, only the last counts.
class DbusNotifications : public QObject, public DesktopNotifications {
  Q_OBJECT

 public:
  explicit DbusNotifications(const QString& program);

  void Show(const Notification& notification) override;
  void Withdraw() override;

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
