#include "platform_qt/router/wait_limit.h"

#include <algorithm>

namespace verlume::qt {

WaitLimit::WaitLimit(std::chrono::milliseconds time, SocketNumber interrupt)
    : WaitLimit(Clock::now() + time, interrupt) {}

WaitLimit WaitLimit::Within(std::chrono::milliseconds time) const {
  return WaitLimit(std::min(end_, Clock::now() + time), interrupt_);
}

bool WaitLimit::IsInterrupted() const {
  return interrupt_ != kNoSocket &&
         WaitForSocket(kNoSocket, Readiness::Read, interrupt_, 0).isInterrupted;
}

bool WaitLimit::IsOver() const {
  return MillisecondsLeft() == 0 || IsInterrupted();
}

int WaitLimit::MillisecondsLeft() const {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now());
  return static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(left.count(), 0, 1 << 30));
}

bool WaitLimit::Await(SocketNumber socket, Readiness wanted) const {
  while (const int left = MillisecondsLeft()) {
    const Waited waited = WaitForSocket(socket, wanted, interrupt_, left);
    if (waited.isInterrupted) return false;
    if (waited.isReady) return true;
  }
  return false;
}

void WaitLimit::AwaitEnd() const {
  Await(kNoSocket, Readiness::Read);
}

}  // namespace verlume::qt
