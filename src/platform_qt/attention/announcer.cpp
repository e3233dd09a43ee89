#include "platform_qt/attention/announcer.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <chrono>

namespace verlume::qt {
namespace {

// Longer than a tool needs to ask for the text.
constexpr std::chrono::seconds kShown{5};

class NotificationWidget : public QWidget {
 public:
  explicit NotificationWidget(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    resize(1, 1);
    hide();
  }
};

QAccessibleInterface* NewNotificationInterface(const QString&, QObject* object) {
  auto* widget = dynamic_cast<NotificationWidget*>(object);
  return widget ? new QAccessibleWidget(widget, QAccessible::Notification) : nullptr;
}

}  // namespace

Announcer::Announcer(QWidget* window) : hide_(new QTimer(window)) {
  QAccessible::installFactory(NewNotificationInterface);
  for (QWidget*& notification : notifications_) notification = new NotificationWidget(window);
  hide_->setSingleShot(true);
  hide_->setInterval(kShown);
  QObject::connect(hide_, &QTimer::timeout, window, [this] {
    for (QWidget* notification : notifications_) notification->hide();
  });
}

void Announcer::Announce(const QString& text) {
  if (!QAccessible::isActive()) return;
  QWidget* notification = notifications_[next_];
  next_ = (next_ + 1) % notifications_.size();
  notification->hide();
  notification->setAccessibleName(text);
  notification->show();
  hide_->start();
}

}  // namespace verlume::qt
