#include "platform_qt/router/wait_limit.h"

#include <poll.h>

#include <algorithm>
#include <array>

namespace verlume::qt {

WaitLimit::WaitLimit(std::chrono::milliseconds time, int interrupt)
    : WaitLimit(Clock::now() + time, interrupt) {}

WaitLimit WaitLimit::Within(std::chrono::milliseconds time) const {
  return WaitLimit(std::min(end_, Clock::now() + time), interrupt_);
}

bool WaitLimit::IsInterrupted() const {
  pollfd interrupt{interrupt_, POLLIN, 0};
  return interrupt_ >= 0 && ::poll(&interrupt, 1, 0) > 0;
}

bool WaitLimit::IsOver() const {
  return MillisecondsLeft() == 0 || IsInterrupted();
}

int WaitLimit::MillisecondsLeft() const {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now());
  return static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(left.count(), 0, 1 << 30));
}

bool WaitLimit::Await(int descriptor, short events) const {
  // poll passes over a negative descriptor.
  std::array<pollfd, 2> waiting = {{{descriptor, events, 0}, {interrupt_, POLLIN, 0}}};
  while (const int left = MillisecondsLeft()) {
    if (::poll(waiting.data(), waiting.size(), left) < 0) continue;  // a signal
    if (waiting[1].revents != 0) return false;
    if (waiting[0].revents != 0) return true;
  }
  return false;
}

}  // namespace verlume::qt
