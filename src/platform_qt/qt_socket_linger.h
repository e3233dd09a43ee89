// Ends a connection so that what was handed over still arrives.
#pragma once

#include <QTcpSocket>

namespace verlume::qt {

// Takes the socket, which no longer raises events for anybody else. It sends what it holds, waits
// for the peer to close as well, and deletes itself; after kLingerLimit it is cut.
void LetLinger(QTcpSocket* socket, QObject* owner);

// Gives the lingering sockets of an owner that is about to go the time to send what they hold.
void FinishLingering(QObject* owner);

constexpr int kLingerLimit = 3000;  // ms

}  // namespace verlume::qt
