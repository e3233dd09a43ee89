#include "platform_qt/attention/attention.h"

#include <QAccessible>
#include <QApplication>
#include <QWindow>

#include "platform_qt/attention/counted_icon.h"
#include "platform_qt/attention/desktop_notifications.h"
#include "platform_qt/attention/launcher_entry.h"
#include "platform_qt/convert/text.h"

namespace verlume::qt {

QtAttention::QtAttention(QWidget* window)
    : window_(window), icon_(window->windowIcon()), announcer_(window) {
  connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* now) {
    if (now && onUserBack) onUserBack();
  });
}

QtAttention::~QtAttention() {
  // A number or a notification must not outlive the program.
  SetCount(0);
  Withdraw();
}

bool QtAttention::IsListenedTo() const {
  return QAccessible::isActive();
}

void QtAttention::Announce(std::u16string_view text) {
  announcer_.Announce(ToQt(text));
}

bool QtAttention::CanNotify() const {
  return DesktopNotifications::CanShow();
}

void QtAttention::Notify(const Notification& notification) {
  if (!notifications_) {
    notifications_ = DesktopNotifications::Make(window_->windowTitle(), icon_);
    if (!notifications_) return;
    notifications_->onClicked = [this] { BringToFront(); };
    notifications_->onSoundMissing = [this] { Beep(); };
  }
  notifications_->Show(notification);
}

void QtAttention::Withdraw() {
  if (notifications_) notifications_->Withdraw();
}

void QtAttention::Beep() {
  QApplication::beep();
}

void QtAttention::SetCount(int count) {
  if (count == count_) return;
  count_ = count;
  window_->setWindowIcon(CountedIcon(icon_, count));
  ShowCountInLauncher(count);
}

// A box over the window blocks it, and is what the user came for.
void QtAttention::BringToFront() {
  QWidget* box = QApplication::activeModalWidget();
  if (window_->isMinimized()) window_->showNormal();
  window_->raise();
  QWidget* front = box ? box : window_;
  front->raise();
  front->activateWindow();
}

}  // namespace verlume::qt
