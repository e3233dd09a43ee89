// The privacy of the socket's conversations, as the program asks for it and is told of it. For the
// user-interface thread only.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/privacy.h"
#include "platform_qt/net/privacy_terms.h"
#include "platform_qt/privacy/own_key.h"

namespace verlume::qt {

class QtPeerPrivacy : public PeerPrivacy {
 public:
  // `admit` lets the peer of the connection in.
  QtPeerPrivacy(std::string keyFile, std::function<void()> admit)
      : ownKey_(std::move(keyFile)), admit_(std::move(admit)) {}

  void SetOffer(PrivacyOffer offer) override { offer_ = offer; }
  void SetOwnName(std::u16string_view name) override;
  void ExpectKey(const std::optional<KeyFingerprint>& key) override { expected_ = key; }
  OwnKey PrepareOwnKey() override { return ownKey_.Prepare(); }
  OwnKey ReplaceOwnKey() override { return ownKey_.Replace(); }
  std::optional<KeyFingerprint> OwnFingerprint() const override;
  Privacy State() const override { return state_; }
  std::optional<Peer> CurrentPeer() const override { return peer_; }
  void AdmitPeer() override;
  PrivacyFailure LastFailure() const override { return failure_; }
  bool HasPeerSaidGoodbye() const override { return hasPeerSaidGoodbye_; }
  std::u16string SafetyDigits() const override;

  // How long things may take; for connections that begin from now on.
  void SetLimits(const PrivacyLimits& limits) { limits_ = limits; }

  // What the socket asks, and tells.
  PrivacyTerms TermsFor(stream::Role role) const;
  // Whether a connection on these terms is to be tried; otherwise LastFailure says why not.
  bool MayBegin(const PrivacyTerms& terms);
  void OnState(Privacy state);
  void OnPeerKnown(Peer peer, PublicKey key);
  void OnFailed(PrivacyFailure failure) { failure_ = failure; }
  void OnGoodbye(bool isSaid) { hasPeerSaidGoodbye_ = isSaid; }
  // The connection is over. Raises nothing: OnState follows.
  void OnLeft();

 private:
  OwnKeyFile ownKey_;
  const std::function<void()> admit_;
  PrivacyOffer offer_ = PrivacyOffer::Never;
  std::string ownName_;
  std::optional<KeyFingerprint> expected_;
  PrivacyLimits limits_;

  Privacy state_ = Privacy::None;
  Privacy told_ = Privacy::None;
  std::optional<Peer> peer_;
  PublicKey peerKey_;
  PrivacyFailure failure_ = PrivacyFailure::None;
  bool hasPeerSaidGoodbye_ = false;
};

}  // namespace verlume::qt
