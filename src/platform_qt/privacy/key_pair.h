// A pair of keys on P-256, and the envelope in which it is shown.
#pragma once

#include <QSslCertificate>
#include <QSslKey>
#include <optional>
#include <string>
#include <string_view>

#include "platform_qt/privacy/public_key.h"

namespace verlume::qt {

struct KeyPair {
  QSslKey secret;
  QSslCertificate envelope;  // its names and dates mean nothing
  PublicKey shown;
  KeyFingerprint fingerprint;
};

// A new secret key as PKCS#8 in PEM; "" if the system cannot make one.
std::string MakeSecretKey();

// Nothing if the PEM does not hold a secret key on P-256, or the system cannot use it.
std::optional<KeyPair> ReadKeyPair(std::string_view pem);

}  // namespace verlume::qt
