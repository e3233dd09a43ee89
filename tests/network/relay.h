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

  // Both directions deliver nothing for that long, then what they held back.
  void Stall(Time duration);
  // Both directions lose everything from now on.
  void Cut();

  // What it carried and lost, for people.
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

  std::mutex mutex_;  // of the models
  std::array<Direction, 2> directions_;
  Descriptor wake_;
  std::atomic<bool> isEnding_ = false;
  std::thread thread_;
};

}  // namespace verlume::network
