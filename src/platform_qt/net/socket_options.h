// Options of a TCP connection that Qt does not set.
#pragma once

#include <QTcpSocket>

namespace verlume::qt {

// Each text is sent at once. A peer that has vanished is detected: within 30 s while the connection
// is idle, within 20 s of a text that its machine does not acknowledge.
void SetConnectionOptions(QTcpSocket& socket);

// Makes this machine acknowledge at once what has arrived. The system resets the option, so it is
// set after every read.
void AcknowledgeAtOnce(QTcpSocket& socket);

// How many of the bytes written to the socket the peer's machine has not acknowledged; at least 1
// once the connection has ended, because the system no longer knows.
qint64 Unacknowledged(const QTcpSocket& socket);

}  // namespace verlume::qt
