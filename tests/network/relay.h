// The cable between two devices: a thread that carries frames both ways as a LinkModel says.
#pragma once

#include <array>
#include <atomic>
#include <mutex>
#include <string>
#include <thread>

#include "network/link_model.h"
#include "network/tap_device.h"

namespace verlume::network {

class Relay {
 public:
  // The devices outlive it.
  Relay(TapDevice& left, TapDevice& right, const LinkQuality& quality, std::uint64_t seed);
  ~Relay();

  // For that long both directions deliver nothing; then they deliver what has waited.
  void Stall(Time duration);
  // Both directions lose everything until Mend.
  void Cut();
  void Mend();

  // How much it carried and lost, as text for people.
  std::string Account();

 private:
  struct Direction {
    TapDevice& from;
    TapDevice& to;
    LinkModel model;
  };

  static Time Now();
  void Run();
  void Carry(Direction& direction);
  // How long poll may wait, in milliseconds; -1 is for ever.
  int TimeToNextDelivery();

  std::mutex mutex_;  // guards the models
  std::array<Direction, 2> directions_;
  Descriptor wake_;
  std::atomic<bool> isEnding_ = false;
  std::thread thread_;
};

}  // namespace verlume::network
