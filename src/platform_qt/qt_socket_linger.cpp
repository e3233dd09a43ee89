#include "platform_qt/qt_socket_linger.h"

#include <sys/socket.h>

#include <QDeadlineTimer>
#include <QTimer>

namespace verlume::qt {
namespace {

constexpr auto kName = "lingering";

// Says that no more will be sent. Closing outright with arrivals unread would make the system throw
// away what the peer has not read yet.
void EndSending(QTcpSocket* socket) {
  if (socket->bytesToWrite() == 0) {
    ::shutdown(static_cast<int>(socket->socketDescriptor()), SHUT_WR);
  }
}

}  // namespace

void LetLinger(QTcpSocket* socket, QObject* owner) {
  socket->disconnect();
  socket->setParent(owner);
  socket->setObjectName(kName);
  socket->flush();
  if (socket->state() != QAbstractSocket::ConnectedState) {
    socket->abort();
    socket->deleteLater();
    return;
  }
  const auto discard = [socket] { socket->readAll(); };
  QObject::connect(socket, &QTcpSocket::readyRead, socket, discard);
  QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket] { EndSending(socket); });
  QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  QTimer::singleShot(kLingerLimit, socket, [socket] {
    socket->abort();
    socket->deleteLater();
  });
  discard();
  EndSending(socket);
}

void FinishLingering(QObject* owner) {
  const QDeadlineTimer limit(kLingerLimit);
  for (QTcpSocket* socket : owner->findChildren<QTcpSocket*>(kName, Qt::FindDirectChildrenOnly)) {
    while (socket->bytesToWrite() > 0 && !limit.hasExpired()) {
      if (!socket->waitForBytesWritten(static_cast<int>(limit.remainingTime()))) break;
    }
  }
}

}  // namespace verlume::qt
