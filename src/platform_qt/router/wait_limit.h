// How long a question to the router may take.
#pragma once

#include <chrono>

#include "platform_qt/os/open_socket.h"

namespace verlume::qt {

class WaitLimit {
 public:
  // `interrupt` can be read when the answer is no longer wanted. It outlives the limit.
  explicit WaitLimit(std::chrono::milliseconds time, SocketNumber interrupt = kNoSocket);

  // The same, but `time` from now at most.
  WaitLimit Within(std::chrono::milliseconds time) const;

  bool IsInterrupted() const;
  // The time is up, or it is interrupted.
  bool IsOver() const;
  // Waits until the socket can be read or written, or has an error. False when over.
  bool Await(SocketNumber socket, Readiness wanted) const;
  // Waits until it is over.
  void AwaitEnd() const;

 private:
  using Clock = std::chrono::steady_clock;
  WaitLimit(Clock::time_point end, SocketNumber interrupt) : end_(end), interrupt_(interrupt) {}
  int MillisecondsLeft() const;

  Clock::time_point end_;
  SocketNumber interrupt_;
};

}  // namespace verlume::qt
