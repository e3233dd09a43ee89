// Keeps the texts that are sent apart. Standard C++ only; time is passed in, as milliseconds of any
// clock that never goes back.
//
// TCP carries bytes, not texts: what is sent while earlier bytes are still on their way may arrive
// joined with them. So a text leaves only when the peer's machine has acknowledged every byte
// before it, and the program there has had the time to read them.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <utility>

#include "platform/socket.h"

namespace verlume::stream {

struct OutgoingText {
  std::string bytes;
  TextKind kind;

  bool operator==(const OutgoingText&) const = default;
};

class SendQueue {
 public:
  // How long the peer's program gets to read what its machine has acknowledged.
  static constexpr std::int64_t kReadingTime = 20;

  // A signal that repeats the one before it, while that waits, is left out: a peer that asks and
  // asks, and takes no answer, costs nothing.
  void Add(OutgoingText text);

  // The peer's machine has acknowledged every byte of what was taken.
  void Acknowledge(std::int64_t now);

  // The text to be sent now, if there is one.
  std::optional<std::string> Take(std::int64_t now);

  // Everything is acknowledged: neither need be called.
  bool IsDone() const { return texts_.empty() && !onItsWay_; }
  // How many lines are not: on their way, or behind what is.
  std::size_t LinesWaiting() const { return linesWaiting_; }

 private:
  std::deque<OutgoingText> texts_;
  std::optional<TextKind> onItsWay_;
  std::size_t linesWaiting_ = 0;
  std::optional<std::int64_t> acknowledged_;  // when the last text was
};

}  // namespace verlume::stream
