#include "platform_qt/net/tls_settings.h"

#include <QSslDiffieHellmanParameters>

#include "platform_qt/net/read_size.h"

namespace verlume::qt {

QSslConfiguration TlsSettings(const KeyPair& ownKey) {
  QSslConfiguration settings;
  settings.setProtocol(QSsl::TlsV1_3);
  settings.setLocalCertificate(ownKey.envelope);
  settings.setPrivateKey(ownKey.secret);
  settings.setCaCertificates({});
  // TLS 1.3 needs none, and those that Qt has ready are too short for the system.
  settings.setDiffieHellmanParameters(QSslDiffieHellmanParameters());
  settings.setPeerVerifyMode(QSslSocket::VerifyPeer);
  settings.setMissingCertificateIsFatal(true);
  // What the server still hands out nobody can use: its sessions end with the connection.
  settings.setSslOption(QSsl::SslOptionDisableSessionTickets, true);
  settings.setSslOption(QSsl::SslOptionDisableSessionSharing, true);
  settings.setSslOption(QSsl::SslOptionDisableSessionPersistence, true);
  settings.setBackendConfigurationOption("SignatureAlgorithms", "ECDSA+SHA256");
  settings.setBackendConfigurationOption("ClientSignatureAlgorithms", "ECDSA+SHA256");
  return settings;
}

std::optional<PublicKey> KeyOfPeer(const QSslSocket& socket) {
  const QList<QSslCertificate> shown = socket.peerCertificateChain();
  if (shown.size() != 1 || shown.front() != socket.peerCertificate()) return std::nullopt;
  return PublicKeyOf(View(shown.front().toDer()));
}

}  // namespace verlume::qt
