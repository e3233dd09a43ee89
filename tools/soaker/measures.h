// What a process costs, as the system tells it (Linux).
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <cstdint>

namespace verlume::soak {

std::int64_t ResidentBytes();
// What is handed out of the heap; 0 under a sanitizer, which has a heap of its own.
std::int64_t HeapBytes();
// Gives what the heap holds in reserve back to the system.
void ReturnReserve();
int Descriptors();
// What the process has worked so far.
std::int64_t ProcessorMilliseconds();

// How long the event loop lets an event wait: a timer asks every 10 ms and notes how late it was,
// and how much of that the process itself has worked: the rest was another's turn.
class AnswerTimes {
 public:
  AnswerTimes();
  // Both in milliseconds, since the last Restart.
  int Worst() const { return worst_; }
  int WorstOwn() const { return worstOwn_; }
  void Restart();

 private:
  void Note();

  QTimer timer_;
  QElapsedTimer sinceLast_;
  std::int64_t processorAtLast_ = 0;
  int worst_ = 0;
  int worstOwn_ = 0;
};

}  // namespace verlume::soak
