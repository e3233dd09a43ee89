// Keys and certificates of every kind, as peers may show them.
#pragma once

#include <string>

namespace verlume::qt {

enum class KeyKind {
  P256,
  P256Compressed,  // the same curve, its point written in the short way
  P256Explicit,    // the same curve, described and not named
  P384,
  Rsa,
  Ed25519,
};

struct KeyAndCertificate {
  std::string keyPem;
  std::string certificatePem;
  std::string certificateDer;
};

// A new one each time. Signed with its own key; `padding` bytes of the certificate tell nothing.
KeyAndCertificate MakeCertificate(KeyKind kind, std::size_t padding = 0);

}  // namespace verlume::qt
