#include "platform_qt/attention/desktop_notifications_dbus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QGuiApplication>
#include <utility>

#include "platform_qt/convert/text.h"

namespace verlume::qt {
namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kClick = QStringLiteral("default");

QDBusMessage CallOf(const char* method) {
  return QDBusMessage::createMethodCall(kService, kPath, kService, QLatin1String(method));
}

// Servers with this capability read the text as markup.
QString BodyOf(const Notification& notification, const QStringList& capabilities) {
  const QString text = ToQt(notification.text);
  return capabilities.contains(QStringLiteral("body-markup")) ? text.toHtmlEscaped() : text;
}

QVariantMap HintsOf(const Notification& notification) {
  QVariantMap hints;
  hints[QStringLiteral("desktop-entry")] = QGuiApplication::desktopFileName();
  hints[QStringLiteral("category")] = QStringLiteral("im.received");
  if (notification.withSound) {
    hints[QStringLiteral("sound-name")] = QStringLiteral("message-new-instant");
  } else {
    hints[QStringLiteral("suppress-sound")] = true;
  }
  return hints;
}

}  // namespace

bool DesktopNotifications::CanShow() {
  // Without an address the library would start a bus of its own.
  const bool hasAddress = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
                          QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
  return hasAddress && QDBusConnection::sessionBus().isConnected();
}

std::unique_ptr<DesktopNotifications> DesktopNotifications::Make(const QString& program,
                                                                 const QIcon&) {
  return std::make_unique<DbusNotifications>(program);
}

DbusNotifications::DbusNotifications(const QString& program) : program_(program) {
  // From whoever has the name: asking who that is would wait for an answer.
  QDBusConnection bus = QDBusConnection::sessionBus();
  bus.connect(QString(), kPath, kService, QStringLiteral("ActionInvoked"), this,
              SLOT(OnActionInvoked(uint, QString)));
  bus.connect(QString(), kPath, kService, QStringLiteral("NotificationClosed"), this,
              SLOT(OnNotificationClosed(uint, uint)));
}

void DbusNotifications::Show(const Notification& notification) {
  wanted_ = notification;
  GoOn();
}

void DbusNotifications::Withdraw() {
  wanted_.reset();
  isWithdrawn_ = isBusy_;
  if (!isBusy_) Close();
}

void DbusNotifications::Close() {
  if (shown_ == 0) return;
  QDBusMessage call = CallOf("CloseNotification");
  call << std::exchange(shown_, 0);
  QDBusConnection::sessionBus().send(call);
}

void DbusNotifications::GoOn() {
  if (isBusy_ || !wanted_) return;
  isBusy_ = true;
  isWithdrawn_ = false;
  AskForCapabilities();
}

// Asked each time: the user may have changed to another desktop's server meanwhile.
void DbusNotifications::AskForCapabilities() {
  auto* answer = new QDBusPendingCallWatcher(
      QDBusConnection::sessionBus().asyncCall(CallOf("GetCapabilities")), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    answer->deleteLater();
    const QDBusPendingReply<QStringList> reply = *answer;
    if (reply.isValid() && wanted_) return Send(reply.value());
    // There is no server, or nothing to show any more.
    isBusy_ = false;
    wanted_.reset();
    if (isWithdrawn_) Close();
  });
}

void DbusNotifications::Send(const QStringList& capabilities) {
  const Notification notification = *std::exchange(wanted_, std::nullopt);
  if (notification.withSound && onSoundMissing && !capabilities.contains(QStringLiteral("sound"))) {
    onSoundMissing();
  }
  constexpr int kAsTheDesktopLikes = -1;  // how long it is shown
  // Where there are no actions, some servers would show a box with a button instead.
  QStringList actions;
  if (capabilities.contains(QStringLiteral("actions"))) {
    actions = {kClick, ToQt(notification.title)};
  }
  QDBusMessage call = CallOf("Notify");
  call << program_ << shown_ << QStringLiteral("verlume") << ToQt(notification.title)
       << BodyOf(notification, capabilities) << actions << HintsOf(notification)
       << kAsTheDesktopLikes;
  auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    answer->deleteLater();
    const QDBusPendingReply<uint> reply = *answer;
    isBusy_ = false;
    shown_ = reply.isValid() ? reply.value() : 0;
    if (std::exchange(isWithdrawn_, false)) Close();
    GoOn();
  });
}

void DbusNotifications::OnActionInvoked(uint id, const QString& action) {
  if (id == shown_ && action == kClick && onClicked) onClicked();
}

void DbusNotifications::OnNotificationClosed(uint id, uint) {
  if (id == shown_) shown_ = 0;
}

}  // namespace verlume::qt
