// How long a question to the router may take.
#pragma once

#include <chrono>

namespace verlume::qt {

class WaitLimit {
 public:
  // `interrupt` is a descriptor that becomes readable when the answer is no longer wanted; -1 for
  // none. It outlives the limit.
  explicit WaitLimit(std::chrono::milliseconds time, int interrupt = -1);

  // The same, but `time` from now at most.
  WaitLimit Within(std::chrono::milliseconds time) const;

  bool IsInterrupted() const;
  // The time is up, or it is interrupted.
  bool IsOver() const;
  // Waits until poll(2) reports the descriptor for `events`, or an error of it. False when over.
  bool Await(int descriptor, short events) const;

 private:
  using Clock = std::chrono::steady_clock;
  WaitLimit(Clock::time_point end, int interrupt) : end_(end), interrupt_(interrupt) {}
  int MillisecondsLeft() const;

  Clock::time_point end_;
  int interrupt_;
};

}  // namespace verlume::qt
