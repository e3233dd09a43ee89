// A peer that speaks TLS and frames by itself, and does with them what the program never does.
#pragma once

#include <openssl/ssl.h>

#include <memory>
#include <string>
#include <string_view>

#include "platform_qt/net/raw_peer.h"
#include "platform_qt/privacy/certificates.h"
#include "stream/frames.h"

namespace verlume::qt {

// How a peer shows itself in TLS.
struct TlsManner {
  std::string keyPem;  // "" for no certificate
  std::string certificatePem;
  std::string secondPem = {};  // a certificate that comes along
  int version = TLS1_3_VERSION;
  std::size_t longestFlight =
      ~std::size_t{0};  // so many bytes of TLS are sent, then the line is cut
};

// As the program itself does it, with a key of its own.
TlsManner GoodManner(KeyKind kind = KeyKind::P256, std::size_t padding = 0);

class PrivatePeer {
 public:
  explicit PrivatePeer(RawPeer line) : line_(std::move(line)) {}
  ~PrivatePeer();
  PrivatePeer(const PrivatePeer&) = delete;
  PrivatePeer& operator=(const PrivatePeer&) = delete;

  RawPeer& Line() { return line_; }

  // So many of the bytes received are no part of TLS.
  void StartTls(bool isServer, const TlsManner& manner, std::size_t inClear);
  // Goes on with what is to be done; true once the line has ended.
  bool Step();
  bool IsEncrypted() const { return tls_ && SSL_is_init_finished(tls_); }
  // In TLS. Waits in memory until Step sends it.
  void Send(std::string_view bytes);
  // Says in TLS that it says no more.
  void SendCloseNotify();
  // What has come in TLS.
  const std::string& Received() const { return received_; }
  // The longest flight has been sent.
  bool IsCut() const { return sent_ >= longestFlight_; }
  // How much of what was sent the system has not taken.
  std::size_t Unsent() const { return unsent_.size(); }

 private:
  void Pump();

  RawPeer line_;
  SSL_CTX* context_ = nullptr;
  SSL* tls_ = nullptr;
  std::size_t consumed_ = 0;  // of what the line has received
  std::size_t sent_ = 0;      // bytes of TLS
  std::size_t longestFlight_ = 0;
  std::string unsent_;
  std::string received_;
};

}  // namespace verlume::qt
