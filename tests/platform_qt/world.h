// The World of the socket contracts on this machine's own network.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "platform_qt/net/socket.h"

namespace verlume::qt {

// Handles events until the condition is true; false if it is not within the limit. Checks after
// every event; QTest::qWaitFor checks only every 10 ms.
template <class Condition>
bool WaitFor(Condition condition) {
  constexpr std::chrono::seconds kLimit{10};
  const QDeadlineTimer limit(kLimit);
  QTimer tick;  // for what is no event of this process
  tick.start(std::chrono::milliseconds(5));
  while (!condition()) {
    if (limit.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return true;
}

class QtWorld {
 public:
  Socket& New() {
    sockets_.push_back(std::make_unique<QtSocket>());
    return *sockets_.back();
  }
  std::u16string Host() const { return u"127.0.0.1"; }
  template <class Condition>
  bool Wait(Condition condition) {
    return WaitFor(condition);
  }

 private:
  std::vector<std::unique_ptr<QtSocket>> sockets_;
};

}  // namespace verlume::qt
