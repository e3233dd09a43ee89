// Two machines, Alice's and Bob's, on the two ends of a cable.
#pragma once

#include <QString>
#include <memory>

#include "network/peer_process.h"
#include "network/relay.h"

namespace verlume::network {

// How the two programs talk; neither does otherwise.
enum class Talk { InClear, InPrivate };

class TwoMachines {
 public:
  TwoMachines(const LinkQuality& quality, std::uint64_t seed, Talk talk = Talk::InClear);

  std::unique_ptr<PeerProcess> StartAlice() const;
  std::unique_ptr<PeerProcess> StartBob() const;

  Relay& Cable() { return cable_; }

  static constexpr char kBobIPv4[] = "10.77.0.2";
  static constexpr char kBobIPv6[] = "fd77::2";
  static constexpr char kBobOnTheLink[] = "fe80::77:2";
  static constexpr char kDevice[] = "cable";

 private:
  std::unique_ptr<PeerProcess> Start(const NetNamespace& network, char16_t side) const;

  const Talk talk_;
  NetNamespace alices_;
  NetNamespace bobs_;
  TapDevice alicesEnd_{alices_, kDevice};
  TapDevice bobsEnd_{bobs_, kDevice};
  Relay cable_;
};

// A conversation of the two over a port: Bob waits, Alice calls.
class Conversation {
 public:
  // Starts both programs.
  explicit Conversation(const TwoMachines& machines, int port = 4000);

  // Alice calls Bob at that name or address. False when they are not connected within the limit.
  bool Connect(const QString& host, int limitMilliseconds = 20'000);
  // Both play; Bob's play is Alice's with his name.
  void Start(Play play);
  // Both have typed all of their script; messages may still be on their way.
  bool HasPlayed() const { return alice_->HasPlayed() && bob_->HasPlayed(); }
  // Each shows as many lines as the other has sent.
  bool IsOver() const;

  PeerProcess& Alice() { return *alice_; }
  PeerProcess& Bob() { return *bob_; }

  // Fails the test where a pane does not show exactly the lines of the other side's play.
  void ExpectAllShown() const;

 private:
  int port_;
  Play plays_[2];
  std::unique_ptr<PeerProcess> alice_;
  std::unique_ptr<PeerProcess> bob_;
};

}  // namespace verlume::network
