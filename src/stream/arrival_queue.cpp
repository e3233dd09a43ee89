#include "stream/arrival_queue.h"

#include <utility>

namespace verlume::stream {

bool ArrivalQueue::Add(std::u16string arrival) {
  const std::lock_guard lock(mutex_);
  size_ += arrival.size();
  arrivals_.push_back(std::move(arrival));
  return arrivals_.size() == 1;
}

void ArrivalQueue::End() {
  const std::lock_guard lock(mutex_);
  isEnded_ = true;
}

std::optional<ArrivalQueue::Taken> ArrivalQueue::Take() {
  const std::lock_guard lock(mutex_);
  if (arrivals_.empty()) return std::nullopt;
  const bool wasFull = size_ >= limit_;
  std::u16string arrival = std::move(arrivals_.front());
  arrivals_.pop_front();
  size_ -= arrival.size();
  return Taken{std::move(arrival), wasFull && size_ < limit_};
}

bool ArrivalQueue::IsFull() const {
  const std::lock_guard lock(mutex_);
  return size_ >= limit_;
}

bool ArrivalQueue::IsEmpty() const {
  const std::lock_guard lock(mutex_);
  return arrivals_.empty();
}

bool ArrivalQueue::IsOver() const {
  const std::lock_guard lock(mutex_);
  return isEnded_ && arrivals_.empty();
}

}  // namespace verlume::stream
