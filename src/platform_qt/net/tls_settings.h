// How TLS is spoken: only the key counts that each side shows.
#pragma once

#include <QSslConfiguration>
#include <QSslSocket>

#include "platform_qt/privacy/key_pair.h"

namespace verlume::qt {

// One version, one kind of signature, no resumption, no authorities.
QSslConfiguration TlsSettings(const KeyPair& ownKey);

// The key that the peer has proved to have; nothing unless it has shown exactly one certificate, of
// the right kind.
std::optional<PublicKey> KeyOfPeer(const QSslSocket& socket);

}  // namespace verlume::qt
