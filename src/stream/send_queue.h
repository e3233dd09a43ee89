// Keeps texts apart on their way to the peer. Standard C++ only; the caller passes the time in.
//
// TCP carries bytes, not texts: a text that is sent while earlier bytes are in flight may arrive
// joined with them. So a text is sent only after the peer's machine has acknowledged every byte
// before it, and the program there has had time to read them.
#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <string>

#include "platform/socket.h"
#include "stream/time_point.h"

namespace verlume::stream {

struct OutgoingText {
  std::string bytes;
  TextKind kind;

  bool operator==(const OutgoingText&) const = default;
};

class SendQueue {
 public:
  // The time between an acknowledgement and the next text, in which the peer's program reads.
  static constexpr std::chrono::milliseconds kReadingTime{20};

  // Appends a text. A signal that equals the one before it in the queue is dropped: a peer that
  // keeps asking, and never reads the answer, must not fill the memory.
  void Add(OutgoingText text);

  // The peer's machine has acknowledged every byte that was taken.
  void Acknowledge(TimePoint now);

  // The text to send now; nothing while one is in flight, or the peer's program reads.
  std::optional<std::string> Take(TimePoint now);

  // Every text is acknowledged.
  bool IsDone() const { return texts_.empty() && !inFlight_; }
  // How many lines are not acknowledged, in flight or queued.
  std::size_t LinesWaiting() const { return linesWaiting_; }

 private:
  std::deque<OutgoingText> texts_;
  std::optional<TextKind> inFlight_;
  std::size_t linesWaiting_ = 0;
  std::optional<TimePoint> acknowledged_;  // when the last text was
};

}  // namespace verlume::stream
