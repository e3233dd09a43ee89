// What Qt does not ask of a TCP connection by itself.
#pragma once

#include <QTcpSocket>

namespace verlume::qt {

// Each text leaves at once. A peer that has vanished is noticed: within 30 s while nothing is said,
// within 20 s of a text that its machine does not acknowledge.
void SetConnectionOptions(QTcpSocket& socket);

// Has this machine tell the peer's at once what has arrived. The system forgets it, so it is asked
// for after every read.
void AcknowledgeAtOnce(QTcpSocket& socket);

// How many of the bytes written to the socket the peer's machine has not acknowledged. Of a
// connection that has ended nothing more is known: 1.
qint64 Unacknowledged(const QTcpSocket& socket);

}  // namespace verlume::qt
