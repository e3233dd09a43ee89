// The public keys of peers: what tells one from another.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/privacy.h"

namespace verlume::qt {

// A SubjectPublicKeyInfo in DER. All keys are points on the named curve P-256, written without
// compression: so one key is written in one way only.
using PublicKey = std::string;

// The key in a certificate in DER. Nothing if it is of any other kind, or no certificate.
std::optional<PublicKey> PublicKeyOf(std::string_view certificate);

// SHA-256.
KeyFingerprint FingerprintOf(const PublicKey& key);

}  // namespace verlume::qt
