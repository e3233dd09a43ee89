#include "platform_qt/net/private_peer.h"

#include <openssl/pem.h>

#include <algorithm>

#include "platform_qt/privacy/openssl_objects.h"

namespace verlume::qt {
namespace {

Bio BioOf(const std::string& text) {
  return Bio(BIO_new_mem_buf(text.data(), static_cast<int>(text.size())));
}

CertificateObject CertificateOf(const std::string& pem) {
  return CertificateObject(PEM_read_bio_X509(BioOf(pem).get(), nullptr, nullptr, nullptr));
}

}  // namespace

TlsManner GoodManner(KeyKind kind, std::size_t padding) {
  const KeyAndCertificate made = MakeCertificate(kind, padding);
  return {.keyPem = made.keyPem, .certificatePem = made.certificatePem};
}

PrivatePeer::~PrivatePeer() {
  SSL_free(tls_);
  SSL_CTX_free(context_);
}

void PrivatePeer::StartTls(bool isServer, const TlsManner& manner, std::size_t inClear) {
  context_ = SSL_CTX_new(isServer ? TLS_server_method() : TLS_client_method());
  SSL_CTX_set_security_level(context_, 0);
  SSL_CTX_set_min_proto_version(context_, manner.version);
  SSL_CTX_set_max_proto_version(context_, manner.version);
  SSL_CTX_set_max_cert_list(context_, 8 << 20);
  SSL_CTX_set_verify(context_, SSL_VERIFY_PEER, [](int, X509_STORE_CTX*) { return 1; });
  if (!manner.keyPem.empty()) {
    const KeyObject key(
        PEM_read_bio_PrivateKey(BioOf(manner.keyPem).get(), nullptr, nullptr, nullptr));
    SSL_CTX_use_certificate(context_, CertificateOf(manner.certificatePem).get());
    SSL_CTX_use_PrivateKey(context_, key.get());
  }
  if (!manner.secondPem.empty()) {
    SSL_CTX_add1_chain_cert(context_, CertificateOf(manner.secondPem).get());
  }
  tls_ = SSL_new(context_);
  SSL_set_bio(tls_, BIO_new(BIO_s_mem()), BIO_new(BIO_s_mem()));
  if (isServer) {
    SSL_set_accept_state(tls_);
  } else {
    SSL_set_connect_state(tls_);
  }
  longestFlight_ = manner.longestFlight;
  consumed_ = inClear;
}

bool PrivatePeer::Step() {
  const bool hasEnded = line_.HasEnded();
  if (!tls_) return hasEnded;
  const std::string_view fresh = std::string_view(line_.Received()).substr(consumed_);
  if (!fresh.empty()) BIO_write(SSL_get_rbio(tls_), fresh.data(), static_cast<int>(fresh.size()));
  consumed_ += fresh.size();
  if (!SSL_is_init_finished(tls_)) SSL_do_handshake(tls_);
  char buffer[16 << 10];
  for (int size = 1; size > 0;) {
    size = SSL_is_init_finished(tls_) ? SSL_read(tls_, buffer, sizeof buffer) : 0;
    if (size > 0) received_.append(buffer, static_cast<std::size_t>(size));
  }
  Pump();
  return hasEnded;
}

void PrivatePeer::Pump() {
  char* bytes = nullptr;
  const long size = BIO_get_mem_data(SSL_get_wbio(tls_), &bytes);
  if (size > 0) unsent_.append(bytes, static_cast<std::size_t>(size));
  (void)BIO_reset(SSL_get_wbio(tls_));
  const std::string_view allowed =
      std::string_view(unsent_).substr(0, longestFlight_ - std::min(sent_, longestFlight_));
  const std::size_t taken = allowed.empty() ? 0 : line_.Send(allowed);
  unsent_.erase(0, taken);
  sent_ += taken;
  if (IsCut()) line_.Close();
}

void PrivatePeer::Send(std::string_view bytes) {
  if (!bytes.empty()) SSL_write(tls_, bytes.data(), static_cast<int>(bytes.size()));
  Pump();
}

void PrivatePeer::SendCloseNotify() {
  SSL_shutdown(tls_);
  Pump();
}

}  // namespace verlume::qt
