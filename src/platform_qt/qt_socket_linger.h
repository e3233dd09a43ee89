// Ends a connection so that what was handed over still arrives.
#pragma once

#include <QTcpSocket>

#include "platform_qt/qt_sender.h"

namespace verlume::qt {

constexpr int kSendingLimit = 2000;  // ms
constexpr int kLingerLimit = 3000;   // ms

// Told how many lines never arrived.
using UndeliveredHandler = std::function<void(std::size_t lines)>;

// Takes a socket, which no longer raises events for anybody else, and what sends over it; null
// where nothing does. What waits is sent for kSendingLimit at most; then it waits for the peer to
// close as well, and deletes itself. After kLingerLimit it is cut. Lines that did not arrive are
// told of, but not from within this call. The socket dies with `owner` at the latest.
void LetLinger(QTcpSocket* socket, Sender* sender, QObject* owner, UndeliveredHandler undelivered);

// Waits until the lingering sockets of the owner have sent what waits, kSendingLimit at most, and
// tells of the lines that did not arrive. No events are handled meanwhile.
void FinishLingering(QObject* owner);

}  // namespace verlume::qt
