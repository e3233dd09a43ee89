// The privacy of a socket in memory. Its keys are scripted. Two sockets that both can settle on a
// private conversation when the one that calls has the first text of the other; with any other peer
// the first arrival settles that it goes in clear.
#pragma once

#include <optional>
#include <string>

#include "platform/privacy.h"

namespace verlume::fake {

class FakeSocket;

class FakePrivacy : public PeerPrivacy {
 public:
  FakePrivacy(FakeSocket& socket, std::uint8_t number) : socket_(socket) { key.fill(number); }

  void SetOffer(PrivacyOffer value) override { offer = value; }
  void SetOwnName(std::u16string_view name) override { ownName = name; }
  void ExpectKey(const std::optional<KeyFingerprint>& value) override { expectedKey = value; }
  OwnKey PrepareOwnKey() override;
  OwnKey ReplaceOwnKey() override;
  std::optional<KeyFingerprint> OwnFingerprint() const override;
  Privacy State() const override { return state_; }
  std::optional<Peer> CurrentPeer() const override { return peer_; }
  void AdmitPeer() override;
  PrivacyFailure LastFailure() const override { return failure_; }
  bool HasPeerSaidGoodbye() const override { return hasPeerSaidGoodbye_; }
  std::u16string SafetyDigits() const override;

  // While provesKeys was false, a conversation stays at Becoming; now it goes on.
  void ProveKeys();

  // Whether what is sent now waits for AdmitPeer.
  bool IsHeld() const { return !isOpen_; }

  // The script.
  OwnKey ownKey = OwnKey::Ready;  // what PrepareOwnKey finds
  OwnKey replacement = OwnKey::Ready;
  KeyFingerprint key{};
  PrivacyFailure fails = PrivacyFailure::None;  // how proving the keys ends
  bool provesKeys = true;
  std::u16string digits = u"123456789012345678901234567890123456789012345678901234567890";

  // What the program has set.
  PrivacyOffer offer = PrivacyOffer::Never;
  std::u16string ownName;
  std::optional<KeyFingerprint> expectedKey;
  int timesReplaced = 0;

 private:
  friend class FakeSocket;

  // It has to be private, and there is no key to show.
  bool LacksKey() const { return offerNow_ == PrivacyOffer::Only && !isReady_; }
  bool CanBePrivate() const { return offerNow_ != PrivacyOffer::Never && isReady_; }
  void Begin();      // a call, or a connection that is accepted
  void Connected();  // it is made
  void End();
  void SettleByArrival(std::u16string_view text);
  void SettleInClear(std::u16string_view text);
  void KnowPeer(Peer peer);
  void Enter(Privacy state);
  void Fail(PrivacyFailure failure);

  FakeSocket& socket_;
  bool isReady_ = false;  // the own key has been prepared
  PrivacyOffer offerNow_ = PrivacyOffer::Never;
  bool isSettled_ = true;
  bool isOpen_ = true;
  Privacy state_ = Privacy::None;
  std::optional<Peer> peer_;
  PrivacyFailure failure_ = PrivacyFailure::None;
  bool hasPeerSaidGoodbye_ = false;
};

}  // namespace verlume::fake
