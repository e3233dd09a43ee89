// A server of notifications as desktops have one, on the session bus.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <vector>

namespace verlume::qt {

class NotificationServer : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

 public:
  struct Shown {
    uint id = 0;
    uint replaces = 0;
    QString program;
    QString title;
    QString text;
    QStringList actions;
    QVariantMap hints;
  };

  NotificationServer();
  ~NotificationServer() override;

  void Click(uint id) { emit ActionInvoked(id, QStringLiteral("default")); }
  // Answers Notify no more, until it is told to, as a desktop does that hangs.
  void Hang() { hangs_ = true; }
  void GoOn();

  QStringList capabilities{"actions", "body", "body-markup"};
  std::vector<Shown> shown;
  std::vector<uint> closed;

 public slots:
  QStringList GetCapabilities() { return capabilities; }
  uint Notify(const QString& program, uint replaces, const QString& icon, const QString& title,
              const QString& text, const QStringList& actions, const QVariantMap& hints,
              int timeout);
  void CloseNotification(uint id);

 signals:
  void ActionInvoked(uint id, const QString& action);
  void NotificationClosed(uint id, uint reason);

 private:
  QDBusConnection bus_;
  uint lastId_ = 0;
  bool hangs_ = false;
  std::vector<QDBusMessage> unanswered_;
};

}  // namespace verlume::qt
