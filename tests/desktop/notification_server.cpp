#include "desktop/notification_server.h"

namespace verlume::qt {
namespace {

const QString kConnection = QStringLiteral("notification server");
const QString kService = QStringLiteral("org.freedesktop.Notifications");

}  // namespace

NotificationServer::NotificationServer()
    : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, kConnection)) {
  bus_.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                      QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
  bus_.registerService(kService);
}

NotificationServer::~NotificationServer() {
  bus_.unregisterService(kService);
  QDBusConnection::disconnectFromBus(kConnection);
}

uint NotificationServer::Notify(const QString& program, uint replaces, const QString&,
                                const QString& title, const QString& text,
                                const QStringList& actions, const QVariantMap& hints, int) {
  const uint id = replaces == 0 ? ++lastId_ : replaces;
  shown.push_back({id, replaces, program, title, text, actions, hints});
  if (hangs_) {
    setDelayedReply(true);
    unanswered_.push_back(message().createReply(id));
  }
  return id;
}

void NotificationServer::GoOn() {
  hangs_ = false;
  for (const QDBusMessage& reply : unanswered_) bus_.send(reply);
  unanswered_.clear();
}

void NotificationServer::CloseNotification(uint id) {
  closed.push_back(id);
  emit NotificationClosed(id, 3);
}

}  // namespace verlume::qt
