// Notices that the machine has slept.
#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

#include "platform_qt/os/machine.h"

namespace verlume::qt {

class SleepWatch {
 public:
  using AskTimeAsleep = std::function<std::chrono::nanoseconds()>;

  // `onSleep` is raised by the event loop of the thread that creates the watch, `interval` after
  // the machine has woken at the latest.
  explicit SleepWatch(std::function<void()> onSleep, AskTimeAsleep timeAsleep = TimeAsleep,
                      std::chrono::milliseconds interval = std::chrono::seconds(5));

 private:
  const std::function<void()> onSleep_;
  const AskTimeAsleep timeAsleep_;
  std::chrono::nanoseconds known_;
  QTimer timer_;
};

}  // namespace verlume::qt
