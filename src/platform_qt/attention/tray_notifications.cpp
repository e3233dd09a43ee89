#include "platform_qt/attention/tray_notifications.h"

#include "platform_qt/convert/text.h"

namespace verlume::qt {

QString CutForTray(const QString& text, qsizetype most) {
  if (text.size() <= most) return text;
  qsizetype end = most - 1;
  if (text[end - 1].isHighSurrogate()) --end;
  return text.left(end) + u'…';
}

TrayNotifications::TrayNotifications(const QString& program, const QIcon& icon) : tray_(icon) {
  tray_.setToolTip(program);
  QObject::connect(&tray_, &QSystemTrayIcon::messageClicked, &tray_, [this] { TakeClick(); });
  QObject::connect(&tray_, &QSystemTrayIcon::activated, &tray_, [this] { TakeClick(); });
}

// Windows shows no notification without a text, so the title stands for a text that is empty.
void TrayNotifications::Show(const Notification& notification) {
  const QString title = ToQt(notification.title);
  const QString text = notification.text.empty() ? title : ToQt(notification.text);
  tray_.show();
  tray_.showMessage(CutForTray(title, kLongestTrayTitle), CutForTray(text, kLongestTrayText),
                    tray_.icon());
}

void TrayNotifications::Withdraw() {
  tray_.hide();
}

void TrayNotifications::TakeClick() {
  tray_.hide();
  if (onClicked) onClicked();
}

}  // namespace verlume::qt
