// One direction of a bad link: decides which frames are lost, and when the others are delivered.
// It has neither clock nor thread: time is passed in. The same seed and the same frames at the same
// times give the same deliveries.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <vector>

namespace verlume::network {

using Time = std::chrono::microseconds;  // since an arbitrary moment
using Frame = std::vector<std::uint8_t>;

struct LinkQuality {
  Time delay{0};
  Time jitter{0};                  // each frame's delay varies by at most this much, either way
  double loss = 0;                 // from 0 to 1
  std::int64_t bitsPerSecond = 0;  // 0 is no limit
  std::int64_t queueLimit = 0;     // bytes that may wait when the speed is limited
};

class LinkModel {
 public:
  LinkModel(const LinkQuality& quality, std::uint64_t seed) : quality_(quality), random_(seed) {}

  // A frame enters the link. It is lost, or delivered later; frames may overtake each other.
  void Add(Frame frame, Time now);
  // Returns the frames that are due by now, in the order of their delivery.
  std::vector<Frame> TakeDue(Time now);
  // When the next frame is due; nothing while none is under way.
  std::optional<Time> NextDelivery() const;

  // Delays every delivery until then.
  void StallUntil(Time until) { stalledUntil_ = until; }
  // Loses the frames under way and all later ones, until Mend.
  void Cut();
  void Mend() { isCut_ = false; }

  std::int64_t Added() const { return added_; }
  std::int64_t Lost() const { return lost_; }

 private:
  double Random();  // from 0 to 1
  // When the frame has been sent; nothing when the queue has no room for it.
  std::optional<Time> TimeSent(std::size_t bytes, Time now);

  LinkQuality quality_;
  std::mt19937_64 random_;
  std::multimap<Time, Frame> underWay_;  // by the time of delivery
  Time lineIsFree_{0};
  Time stalledUntil_{0};
  bool isCut_ = false;
  std::int64_t added_ = 0;
  std::int64_t lost_ = 0;
};

}  // namespace verlume::network
