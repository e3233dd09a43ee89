// Arrivals on their way from the thread that reads them to the thread that shows them. Standard C++
// only; every operation may be called from either thread.
//
// Back-pressure: the reader stops when the queue is full, and the Take that makes room tells the
// other thread to have it resume. Both are decided under one lock, so that no resume gets lost.
#pragma once

#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

namespace verlume::stream {

class ArrivalQueue {
 public:
  // The queue is full when it holds this many characters. The last arrival may exceed it.
  static constexpr std::size_t kLimit = 4 << 20;

  struct Taken {
    std::u16string arrival;
    bool madeRoom;  // the queue was full and no longer is: a reader that stopped has to resume
  };

  explicit ArrivalQueue(std::size_t limit = kLimit) : limit_(limit) {}

  // Appends an arrival, even to a full queue. True when the queue was empty.
  bool Add(std::u16string arrival);
  // No arrival will be added any more.
  void End();

  // The oldest arrival; nothing when the queue is empty.
  std::optional<Taken> Take();

  bool IsFull() const;
  bool IsEmpty() const;
  // Ended, and empty.
  bool IsOver() const;

 private:
  const std::size_t limit_;
  mutable std::mutex mutex_;
  std::deque<std::u16string> arrivals_;
  std::size_t size_ = 0;  // characters
  bool isEnded_ = false;
};

}  // namespace verlume::stream
