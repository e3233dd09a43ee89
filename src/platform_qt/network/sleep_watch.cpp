#include "platform_qt/network/sleep_watch.h"

#include <ctime>
#include <utility>

namespace verlume::qt {
namespace {

std::chrono::nanoseconds TimeOf(clockid_t clock) {
  timespec time{};
  ::clock_gettime(clock, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

}  // namespace

// One clock goes on while the machine sleeps, the other does not.
std::chrono::nanoseconds TimeAsleep() {
  const auto awake = TimeOf(CLOCK_MONOTONIC);
  return TimeOf(CLOCK_BOOTTIME) - awake;
}

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
