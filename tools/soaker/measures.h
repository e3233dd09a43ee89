// What this process costs, as Linux reports it.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <cstdint>

namespace verlume::soak {

std::int64_t ResidentBytes();
// The bytes allocated on the heap; 0 under a sanitizer, which has a heap of its own.
std::int64_t HeapBytes();
// Returns unused memory of the heap to the system.
void ReturnReserve();
int Descriptors();
// The processor time of the process so far.
std::int64_t ProcessorMilliseconds();

// Measures how long events wait for the event loop: a timer fires every 10 ms and notes how late it
// is, and how much of that time the process itself worked; the rest went to other processes.
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
