#include "platform_qt/net/peer_privacy.h"

#include <utility>

#include "platform_qt/privacy/safety_digits.h"
#include "stream/utf8_text.h"

namespace verlume::qt {

void QtPeerPrivacy::SetOwnName(std::u16string_view name) {
  ownName_ = stream::EncodeUtf8(name);
}

std::optional<KeyFingerprint> QtPeerPrivacy::OwnFingerprint() const {
  const auto& pair = ownKey_.Pair();
  return pair ? std::optional(pair->fingerprint) : std::nullopt;
}

void QtPeerPrivacy::AdmitPeer() {
  if (peer_) admit_();
}

std::u16string QtPeerPrivacy::SafetyDigits() const {
  if (state_ != Privacy::Private || !ownKey_.Pair() || peerKey_.empty()) return {};
  return SafetyDigitsOf(ownKey_.Pair()->shown, peerKey_);
}

PrivacyTerms QtPeerPrivacy::TermsFor(stream::Role role) const {
  PrivacyTerms terms;
  terms.role = role;
  terms.offer = offer_;
  terms.ownKey = ownKey_.Pair();
  terms.ownName = ownName_;
  if (terms.IsCaller()) terms.expected = expected_;
  terms.limits = limits_;
  return terms;
}

bool QtPeerPrivacy::MayBegin(const PrivacyTerms& terms) {
  const bool mayBegin = terms.CanBePrivate() || !terms.MustBePrivate();
  failure_ = mayBegin ? PrivacyFailure::None : PrivacyFailure::NoKey;
  return mayBegin;
}

void QtPeerPrivacy::OnState(Privacy state) {
  state_ = state;
  if (std::exchange(told_, state) != state && onState) onState();
}

void QtPeerPrivacy::OnPeerKnown(Peer peer, PublicKey key) {
  peer_ = std::move(peer);
  peerKey_ = std::move(key);
  if (onPeerKnown) return onPeerKnown();
  AdmitPeer();
}

void QtPeerPrivacy::OnLeft() {
  state_ = Privacy::None;
  peer_.reset();
  peerKey_.clear();
  hasPeerSaidGoodbye_ = false;
}

}  // namespace verlume::qt
