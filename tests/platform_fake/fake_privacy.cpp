#include "platform_fake/fake_privacy.h"

#include "platform/protocol_marker.h"
#include "platform_fake/fake_socket.h"

namespace verlume::fake {
namespace {

// The nickname in a text that opens a conversation; "" in any other.
std::u16string NameIn(std::u16string_view text) {
  if (text.size() <= kMarkerLength || text.front() != u'\0') return {};
  const char16_t kind = text[kMarkerLength];
  if (kind != u'S' && kind != u'C') return {};
  const std::u16string_view name = text.substr(kMarkerLength + 1);
  return std::u16string(name.substr(0, name.find(u'\0')));
}

}  // namespace

OwnKey FakePrivacy::PrepareOwnKey() {
  isReady_ = ownKey == OwnKey::Ready;
  return ownKey;
}

OwnKey FakePrivacy::ReplaceOwnKey() {
  ++timesReplaced;
  ownKey = replacement;
  return PrepareOwnKey();
}

std::optional<KeyFingerprint> FakePrivacy::OwnFingerprint() const {
  if (!isReady_) return std::nullopt;
  return key;
}

std::u16string FakePrivacy::SafetyDigits() const {
  return state_ == Privacy::Private ? digits : std::u16string();
}

void FakePrivacy::Begin() {
  offerNow_ = offer;
  failure_ = PrivacyFailure::None;
  peer_.reset();
  isOpen_ = isSettled_ = offerNow_ == PrivacyOffer::Never;
}

void FakePrivacy::Connected() {
  if (offerNow_ == PrivacyOffer::Never) Enter(Privacy::Clear);
}

void FakePrivacy::End() {
  isOpen_ = isSettled_ = true;
  peer_.reset();
  state_ = Privacy::None;
  hasPeerSaidGoodbye_ = false;
}

// The side that calls decides, as soon as the other has said what it can.
void FakePrivacy::SettleByArrival(std::u16string_view text) {
  if (isSettled_) return;
  isSettled_ = true;
  FakeSocket* other = socket_.peer_;
  if (!other || !CanBePrivate() || !other->privacy.CanBePrivate()) return SettleInClear(text);
  other->privacy.isSettled_ = true;
  Enter(Privacy::Becoming);
  other->privacy.Enter(Privacy::Becoming);
  if (provesKeys && other->privacy.provesKeys) socket_.Post([this] { ProveKeys(); });
}

void FakePrivacy::SettleInClear(std::u16string_view text) {
  Enter(Privacy::Clear);
  if (LacksKey()) return Fail(PrivacyFailure::NoKey);
  if (offerNow_ == PrivacyOffer::Only || expectedKey) return Fail(PrivacyFailure::NotOffered);
  KnowPeer({std::nullopt, NameIn(text)});
}

void FakePrivacy::ProveKeys() {
  FakeSocket* other = socket_.peer_;
  if (!other || state_ != Privacy::Becoming) return;
  if (fails != PrivacyFailure::None) return Fail(fails);
  if (expectedKey && *expectedKey != other->privacy.key) return Fail(PrivacyFailure::OtherKey);
  FakePrivacy& others = other->privacy;
  others.Enter(Privacy::Private);
  Enter(Privacy::Private);
  other->Post([&others, this] { others.KnowPeer({key, ownName}); });
  socket_.Post([&others, this] { KnowPeer({others.key, others.ownName}); });
}

void FakePrivacy::KnowPeer(Peer peer) {
  peer_ = std::move(peer);
  onPeerKnown ? onPeerKnown() : AdmitPeer();
}

void FakePrivacy::AdmitPeer() {
  if (!peer_ || isOpen_) return;
  isOpen_ = true;
  socket_.Open();
}

void FakePrivacy::Enter(Privacy state) {
  state_ = state;
  if (onState) onState();
}

void FakePrivacy::Fail(PrivacyFailure failure) {
  failure_ = failure;
  socket_.DropConnection();
}

}  // namespace verlume::fake
