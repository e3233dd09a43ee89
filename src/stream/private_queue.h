// Texts on their way to the peer in private: cut to frames, and counted until the peer's program
// has acknowledged them. Standard C++ only.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "platform/socket.h"

namespace verlume::stream {

class PrivateQueue {
 public:
  // Appends a text in UTF-8. A signal that equals the last text is dropped, if that has not begun
  // to be sent.
  void Add(std::string bytes, TextKind kind);

  // The next frame; nothing when every text is taken.
  std::optional<std::string> TakeFrame();

  // The peer's program has taken in so many texts, of all since the beginning. False if that cannot
  // be: fewer than it said before, or more than it got.
  [[nodiscard]] bool Acknowledge(std::uint64_t texts);

  // Every text is taken.
  bool IsEmpty() const { return texts_.empty(); }
  // Every text is acknowledged.
  bool IsDone() const { return texts_.empty() && sent_ == acknowledged_; }
  // How many lines are not acknowledged, sent or queued.
  std::size_t LinesWaiting() const { return linesWaiting_; }

 private:
  struct Text {
    std::string bytes;
    TextKind kind;

    bool operator==(const Text&) const = default;
  };

  std::deque<Text> texts_;
  std::size_t begun_ = 0;  // how much of the first text is taken, in bytes
  // Of all since the beginning.
  std::uint64_t sent_ = 0;
  std::uint64_t acknowledged_ = 0;
  // Which of the sent texts are lines that are not acknowledged, counted from 1. A peer that asks
  // for signals and never acknowledges them costs no memory.
  std::deque<std::uint64_t> sentLines_;
  std::size_t linesWaiting_ = 0;
};

}  // namespace verlume::stream
