#include "network/link_model.h"

#include <algorithm>
#include <utility>

namespace verlume::network {

double LinkModel::Random() {
  constexpr int kUnusedBits = 11;  // a double has 53
  return static_cast<double>(random_() >> kUnusedBits) * 0x1p-53;
}

void LinkModel::Add(Frame frame, Time now) {
  ++added_;
  // Both numbers are always drawn, so that what happens to one frame does not change the next ones.
  const bool isLost = Random() < quality_.loss;
  const double offset = 2 * Random() - 1;
  const auto jitter = static_cast<Time::rep>(offset * static_cast<double>(quality_.jitter.count()));
  const std::optional<Time> sent = TimeSent(frame.size(), now);
  if (isLost || isCut_ || !sent) {
    ++lost_;
    return;
  }
  underWay_.emplace(*sent + quality_.delay + Time(jitter), std::move(frame));
}

std::optional<Time> LinkModel::TimeSent(std::size_t bytes, Time now) {
  if (quality_.bitsPerSecond == 0) return now;
  constexpr std::int64_t kMicroseconds = 1'000'000;
  const std::int64_t bytesPerSecond = quality_.bitsPerSecond / 8;
  const Time begin = std::max(now, lineIsFree_);
  const std::int64_t waiting = (begin - now).count() * bytesPerSecond / kMicroseconds;
  const auto size = static_cast<std::int64_t>(bytes);
  if (waiting + size > quality_.queueLimit) return std::nullopt;
  lineIsFree_ = begin + Time(size * kMicroseconds / bytesPerSecond);
  return lineIsFree_;
}

std::vector<Frame> LinkModel::TakeDue(Time now) {
  std::vector<Frame> due;
  if (now < stalledUntil_) return due;
  const auto end = underWay_.upper_bound(now);
  for (auto each = underWay_.begin(); each != end; ++each) due.push_back(std::move(each->second));
  underWay_.erase(underWay_.begin(), end);
  return due;
}

std::optional<Time> LinkModel::NextDelivery() const {
  if (underWay_.empty()) return std::nullopt;
  return std::max(underWay_.begin()->first, stalledUntil_);
}

void LinkModel::Cut() {
  isCut_ = true;
  lost_ += static_cast<std::int64_t>(underWay_.size());
  underWay_.clear();
}

}  // namespace verlume::network
