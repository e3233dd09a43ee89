// Arrivals on their way from the thread that reads them to the one that shows them. Standard C++
// only; every operation may come from either thread.
#pragma once

#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

namespace verlume::stream {

class ArrivalQueue {
 public:
  // How many characters may wait until no more should be read. One arrival may be larger.
  static constexpr std::size_t kLimit = 4 << 20;

  // Whether none was waiting before it.
  bool Add(std::u16string arrival);
  // Behind those that wait comes no other.
  void End();

  // The oldest one, if one waits.
  std::optional<std::u16string> Take();

  bool IsFull() const;
  bool IsEmpty() const;
  // Ended, and all taken.
  bool IsOver() const;

 private:
  mutable std::mutex mutex_;
  std::deque<std::u16string> arrivals_;
  std::size_t size_ = 0;  // characters
  bool isEnded_ = false;
};

}  // namespace verlume::stream
