// What reaches the user elsewhere, made with Qt and the desktop's own means.
#pragma once

#include <QIcon>
#include <QObject>
#include <QWidget>
#include <memory>

#include "platform/attention.h"
#include "platform_qt/attention/announcer.h"

namespace verlume::qt {

class DesktopNotifications;

class QtAttention : public QObject, public Attention {
 public:
  // The window is the one that comes to the front, and whose icon gets the number. It must outlive
  // this object.
  explicit QtAttention(QWidget* window);
  ~QtAttention() override;

  bool IsListenedTo() const override;
  void Announce(std::u16string_view text) override;
  bool CanNotify() const override;
  void Notify(const Notification& notification) override;
  void Withdraw() override;
  void Beep() override;
  void SetCount(int count) override;

 private:
  void BringToFront();

  QWidget* window_;
  QIcon icon_;  // without a number
  int count_ = 0;
  Announcer announcer_;
  // Made when it is needed first.
  std::unique_ptr<DesktopNotifications> notifications_;
};

}  // namespace verlume::qt
