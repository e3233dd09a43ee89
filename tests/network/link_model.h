// One direction of a link that misbehaves: which frames it loses, and when it delivers the others.
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

using Time = std::chrono::microseconds;  // since any moment
using Frame = std::vector<std::uint8_t>;

struct LinkQuality {
  Time delay{0};
  Time jitter{0};                  // each frame's delay is off by that much at most, either way
  double loss = 0;                 // from 0 to 1
  std::int64_t bitsPerSecond = 0;  // 0 is no limit
  std::int64_t queueLimit = 0;     // bytes that may wait for a line of limited speed
};

class LinkModel {
 public:
  LinkModel(const LinkQuality& quality, std::uint64_t seed) : quality_(quality), random_(seed) {}

  // A frame enters the link. It is lost, or delivered later; frames may overtake each other.
  void Add(Frame frame, Time now);
  // The frames that have come through by now, in the order in which they did.
  std::vector<Frame> TakeDue(Time now);
  // When TakeDue has the next frame; nothing while none is under way.
  std::optional<Time> NextDelivery() const;

  // Holds every delivery back until then.
  void StallUntil(Time until) { stalledUntil_ = until; }
  // Loses what is under way and all that will come.
  void Cut();

  std::int64_t Added() const { return added_; }
  std::int64_t Lost() const { return lost_; }

 private:
  double Random();  // from 0 to 1
  // When the frame has left its sender; nothing when it finds no room to wait.
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
