#include "platform_qt/privacy/certificates.h"

#include <openssl/core_names.h>
#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <openssl/x509v3.h>

#include "platform_qt/privacy/openssl_objects.h"

namespace verlume::qt {
namespace {

KeyObject MakeKey(KeyKind kind) {
  switch (kind) {
    case KeyKind::P384:
      return KeyObject(EVP_EC_gen("P-384"));
    case KeyKind::Rsa:
      return KeyObject(EVP_RSA_gen(2048));
    case KeyKind::Ed25519:
      return KeyObject(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"));
    default:
      break;
  }
  KeyObject key(EVP_EC_gen("P-256"));
  if (kind == KeyKind::P256Compressed) {
    EVP_PKEY_set_utf8_string_param(key.get(), OSSL_PKEY_PARAM_EC_POINT_CONVERSION_FORMAT,
                                   "compressed");
  }
  if (kind == KeyKind::P256Explicit) {
    EVP_PKEY_set_utf8_string_param(key.get(), OSSL_PKEY_PARAM_EC_ENCODING,
                                   OSSL_PKEY_EC_ENCODING_EXPLICIT);
  }
  return key;
}

std::string TakenFrom(BIO* bio) {
  char* bytes = nullptr;
  const long length = BIO_get_mem_data(bio, &bytes);
  return {bytes, static_cast<std::size_t>(length)};
}

void Pad(X509* certificate, std::size_t padding) {
  const std::string comment(padding, 'x');
  X509_EXTENSION* extension =
      X509V3_EXT_conf_nid(nullptr, nullptr, NID_netscape_comment, comment.c_str());
  X509_add_ext(certificate, extension, -1);
  X509_EXTENSION_free(extension);
}

}  // namespace

KeyAndCertificate MakeCertificate(KeyKind kind, std::size_t padding) {
  const KeyObject key = MakeKey(kind);
  const CertificateObject certificate(X509_new());
  X509_set_version(certificate.get(), 2);
  X509_gmtime_adj(X509_getm_notBefore(certificate.get()), 0);
  X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
  X509_set_pubkey(certificate.get(), key.get());
  if (padding > 0) Pad(certificate.get(), padding);
  X509_sign(certificate.get(), key.get(), kind == KeyKind::Ed25519 ? nullptr : EVP_sha256());
  const Bio keyPem(BIO_new(BIO_s_mem()));
  PEM_write_bio_PKCS8PrivateKey(keyPem.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr);
  const Bio pem(BIO_new(BIO_s_mem()));
  PEM_write_bio_X509(pem.get(), certificate.get());
  const Bio der(BIO_new(BIO_s_mem()));
  i2d_X509_bio(der.get(), certificate.get());
  return {TakenFrom(keyPem.get()), TakenFrom(pem.get()), TakenFrom(der.get())};
}

}  // namespace verlume::qt
