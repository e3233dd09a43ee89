// The World of the socket's contracts on this machine's own network.
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

// Lets events through until the condition holds; false when it does not within the limit. It looks
// after every event, where QTest::qWaitFor looks every 10 ms.
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
