#include "platform_qt/privacy/key_pair.h"

#include <openssl/ec.h>
#include <openssl/pem.h>

#include "platform_qt/privacy/openssl_objects.h"

namespace verlume::qt {
namespace {

constexpr char kName[] = "verlume";
// Of certificates that stand for no time: from the first date that can be written to the last.
constexpr char kFirstDate[] = "19500101000000Z";
constexpr char kLastDate[] = "99991231235959Z";

// A key behind a password is none that the program could use: it asks for none.
int NoPassword(char*, int, int, void*) {
  return -1;
}

KeyObject ReadPem(std::string_view pem) {
  const Bio from(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
  return KeyObject(PEM_read_bio_PrivateKey(from.get(), nullptr, NoPassword, nullptr));
}

std::string Taken(const Bio& bio) {
  char* bytes = nullptr;
  const long length = BIO_get_mem_data(bio.get(), &bytes);
  return {bytes, static_cast<std::size_t>(length)};
}

bool SetNames(X509* certificate) {
  X509_NAME* name = X509_get_subject_name(certificate);
  const auto* text = reinterpret_cast<const unsigned char*>(kName);
  return X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, text, -1, -1, 0) == 1 &&
         X509_set_issuer_name(certificate, name) == 1;
}

bool SetDates(X509* certificate) {
  return ASN1_TIME_set_string_X509(X509_getm_notBefore(certificate), kFirstDate) == 1 &&
         ASN1_TIME_set_string_X509(X509_getm_notAfter(certificate), kLastDate) == 1;
}

// In DER; "" if it cannot be made. The certificate is signed with its own key.
std::string MakeEnvelope(EVP_PKEY* key) {
  const CertificateObject made(X509_new());
  X509* certificate = made.get();
  constexpr long kVersion3 = 2;
  const bool isFilled = certificate && X509_set_version(certificate, kVersion3) == 1 &&
                        ASN1_INTEGER_set(X509_get_serialNumber(certificate), 1) == 1 &&
                        SetNames(certificate) && SetDates(certificate) &&
                        X509_set_pubkey(certificate, key) == 1;
  if (!isFilled || X509_sign(certificate, key, EVP_sha256()) == 0) return {};
  const Bio to(BIO_new(BIO_s_mem()));
  return i2d_X509_bio(to.get(), certificate) == 1 ? Taken(to) : std::string();
}

}  // namespace

std::string MakeSecretKey() {
  const KeyObject key(EVP_EC_gen("P-256"));
  const Bio to(BIO_new(BIO_s_secmem()));
  if (!key || !to) return {};
  const bool isWritten = PEM_write_bio_PKCS8PrivateKey(to.get(), key.get(), nullptr, nullptr, 0,
                                                       nullptr, nullptr) == 1;
  return isWritten ? Taken(to) : std::string();
}

std::optional<KeyPair> ReadKeyPair(std::string_view pem) {
  const KeyObject key = ReadPem(pem);
  if (!key || EVP_PKEY_get_base_id(key.get()) != EVP_PKEY_EC) return std::nullopt;
  const std::string envelope = MakeEnvelope(key.get());
  const auto shown = PublicKeyOf(envelope);
  if (!shown) return std::nullopt;
  const QByteArray secret(pem.data(), static_cast<qsizetype>(pem.size()));
  const QByteArray certificate(envelope.data(), static_cast<qsizetype>(envelope.size()));
  KeyPair pair{QSslKey(secret, QSsl::Ec), QSslCertificate(certificate, QSsl::Der), *shown,
               FingerprintOf(*shown)};
  if (pair.secret.isNull() || pair.envelope.isNull()) return std::nullopt;
  return pair;
}

}  // namespace verlume::qt
