#include "platform_qt/net/end_watch.h"

#include <chrono>

#include "platform_qt/os/tcp.h"

namespace verlume::qt {
namespace {

// Meanwhile Qt asks the system for news, and reads what it is told of.
constexpr std::chrono::milliseconds kInterval{100};

// TLS reads through a socket of its own.
QTcpSocket* ReaderOf(QTcpSocket* socket) {
  auto* const inner = socket->findChild<QTcpSocket*>(QString(), Qt::FindDirectChildrenOnly);
  return inner ? inner : socket;
}

bool IsFull(const QTcpSocket& socket) {
  return socket.readBufferSize() > 0 && socket.bytesAvailable() >= socket.readBufferSize();
}

}  // namespace

EndWatch::EndWatch(QTcpSocket* socket) : QObject(socket), socket_(ReaderOf(socket)) {
  connect(&timer_, &QTimer::timeout, this, &EndWatch::Look);
  timer_.start(kInterval);
}

void EndWatch::Look() {
  if (socket_->state() != QAbstractSocket::ConnectedState) return timer_.stop();
  if (IsFull(*socket_)) return;
  // To wait for nothing would be an error of the socket's.
  if (!CanRead(socket_->socketDescriptor())) return timer_.stop();
  socket_->waitForReadyRead(0);
}

}  // namespace verlume::qt
