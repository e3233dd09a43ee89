// On what terms a connection is made: whether it may be private, or has to be.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/privacy.h"
#include "platform_qt/privacy/key_pair.h"
#include "stream/frames.h"

namespace verlume::qt {

// How long things may take.
struct PrivacyLimits {
  std::chrono::milliseconds tail = std::chrono::seconds(1);      // the rest of one that has begun
  std::chrono::milliseconds proof = std::chrono::seconds(30);    // until both sides are known
  std::chrono::milliseconds alive = std::chrono::seconds(10);    // without sending anything
  std::chrono::milliseconds silence = std::chrono::seconds(30);  // without a byte of the peer
  std::chrono::milliseconds goodbye = std::chrono::seconds(3);   // until a goodbye has arrived
};

struct PrivacyTerms {
  stream::Role role = stream::Role::Caller;
  PrivacyOffer offer = PrivacyOffer::Never;
  std::optional<KeyPair> ownKey;  // nothing if it is not ready
  std::string ownName;            // UTF-8
  std::optional<KeyFingerprint> expected;
  PrivacyLimits limits;

  bool IsCaller() const { return role == stream::Role::Caller; }
  // Whether anything but today's words in clear may be said.
  bool CanBePrivate() const { return offer != PrivacyOffer::Never && ownKey.has_value(); }
  bool MustBePrivate() const { return offer == PrivacyOffer::Only || expected.has_value(); }
};

}  // namespace verlume::qt
