#include "platform_qt/dialogs/key_guard.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <chrono>

namespace verlume::qt {
namespace {

constexpr std::chrono::milliseconds kIgnoringTime{500};

}  // namespace

KeyGuard::KeyGuard(QWidget* box) : QObject(box), box_(box) {
  // Filters on the application, because shortcuts of buttons bypass event filters of the box.
  QApplication::instance()->installEventFilter(this);
}

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
      if (watched == box_ && !sinceShown_.isValid()) sinceShown_.start();
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
      break;
    default:
      return false;
  }
  if (sinceShown_.isValid() && sinceShown_.hasExpired(kIgnoringTime.count())) {
    QApplication::instance()->removeEventFilter(this);
    return false;
  }
  const auto* widget = qobject_cast<QWidget*>(watched);
  return watched == box_->windowHandle() ||
         (widget && (widget == box_ || box_->isAncestorOf(widget)));
}

}  // namespace verlume::qt
