// Every conversation goes in clear: this program has no key.
#pragma once

#include "platform/privacy.h"

namespace verlume::qt {

class NoPrivacy : public PeerPrivacy {
 public:
  void SetOffer(PrivacyOffer) override {}
  void SetOwnName(std::u16string_view) override {}
  void ExpectKey(const std::optional<KeyFingerprint>&) override {}
  OwnKey PrepareOwnKey() override { return OwnKey::Unavailable; }
  OwnKey ReplaceOwnKey() override { return OwnKey::Unavailable; }
  std::optional<KeyFingerprint> OwnFingerprint() const override { return std::nullopt; }
  Privacy State() const override { return Privacy::None; }
  std::optional<Peer> CurrentPeer() const override { return std::nullopt; }
  void AdmitPeer() override {}
  PrivacyFailure LastFailure() const override { return PrivacyFailure::None; }
  std::u16string SafetyDigits() const override { return {}; }
};

}  // namespace verlume::qt
