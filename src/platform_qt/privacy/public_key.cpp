#include "platform_qt/privacy/public_key.h"

#include "platform_qt/privacy/openssl_objects.h"

namespace verlume::qt {
namespace {

// The opening of every key on P-256: its algorithm, its curve by name, and that the point is not
// compressed.
constexpr std::string_view kOpening{
    "\x30\x59\x30\x13\x06\x07\x2A\x86\x48\xCE\x3D\x02\x01\x06\x08\x2A\x86\x48\xCE\x3D\x03\x01\x07"
    "\x03\x42\x00\x04",
    27};
constexpr std::size_t kPointLength = 64;

CertificateObject ReadCertificate(std::string_view bytes) {
  const auto* from = reinterpret_cast<const unsigned char*>(bytes.data());
  return CertificateObject(d2i_X509(nullptr, &from, static_cast<long>(bytes.size())));
}

}  // namespace

std::optional<PublicKey> PublicKeyOf(std::string_view certificate) {
  std::optional<PublicKey> key;
  const CertificateObject read = ReadCertificate(certificate);
  // Nothing where the point is not on the curve.
  if (!read || !X509_get0_pubkey(read.get())) return key;
  unsigned char* bytes = nullptr;
  const int length = i2d_X509_PUBKEY(X509_get_X509_PUBKEY(read.get()), &bytes);
  if (length <= 0) return key;
  const std::string_view written(reinterpret_cast<const char*>(bytes),
                                 static_cast<std::size_t>(length));
  const bool isNamedPoint =
      written.starts_with(kOpening) && written.size() == kOpening.size() + kPointLength;
  if (isNamedPoint) key.emplace(written);
  OPENSSL_free(bytes);
  return key;
}

KeyFingerprint FingerprintOf(const PublicKey& key) {
  KeyFingerprint fingerprint{};
  EVP_Digest(key.data(), key.size(), fingerprint.data(), nullptr, EVP_sha256(), nullptr);
  return fingerprint;
}

}  // namespace verlume::qt
