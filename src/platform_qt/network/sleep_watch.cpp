#include "platform_qt/network/sleep_watch.h"

#include <utility>

namespace verlume::qt {

SleepWatch::SleepWatch(std::function<void()> onSleep, AskTimeAsleep timeAsleep,
                       std::chrono::milliseconds interval)
    : onSleep_(std::move(onSleep)), timeAsleep_(std::move(timeAsleep)), known_(timeAsleep_()) {
  QObject::connect(&timer_, &QTimer::timeout, [this] {
    constexpr std::chrono::seconds kSleep{1};  // less is the time between the two readings
    const auto now = timeAsleep_();
    if (now - std::exchange(known_, now) >= kSleep) onSleep_();
  });
  timer_.start(interval);
}

}  // namespace verlume::qt
