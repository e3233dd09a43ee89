#include "platform_qt/net/tcp_road.h"

#include <utility>

#include "platform_qt/os/tcp.h"
#include "richtext/code_pages.h"

namespace verlume::qt {

TcpRoad::TcpRoad(QTcpSocket* socket, Sender* sender, Events events)
    : Road(std::move(events)), socket_(socket), sender_(sender) {
  sender_->onAcknowledged = [this](std::size_t lines) { Tell().onAcknowledged(lines); };
}

void TcpRoad::Listen() {
  connect(socket_, &QTcpSocket::readyRead, this, [this] { Read(); });
  connect(socket_, &QTcpSocket::disconnected, this, [this] { OnDisconnected(); });
}

void TcpRoad::Send(Said said) {
  CheckThread();
  sender_->Send({richtext::EncodeGreek(said.text), said.kind});
}

void TcpRoad::Close() {
  CheckThread();
  socket_->disconnect(this);
  if (socket_->state() != QAbstractSocket::ConnectedState) return Tell().onEnded();
  connect(socket_, &QTcpSocket::readyRead, this, [this] { socket_->readAll(); });
  connect(socket_, &QTcpSocket::disconnected, this, [this] { Tell().onEnded(); });
  sender_->onAcknowledged = [this](std::size_t lines) {
    Tell().onAcknowledged(lines);
    ShutDownSending();
  };
  socket_->readAll();
  ShutDownSending();
}

// Half-closes the connection once everything is sent. A full close while bytes are unread would
// reset it, and the peer would lose what it has not read yet.
void TcpRoad::ShutDownSending() {
  CheckThread();
  if (!sender_->IsDone()) return;
  EndSending(socket_->socketDescriptor());
  Tell().onSendingEnded();
}

void TcpRoad::Abort() {
  CheckThread();
  socket_->disconnect(this);
  socket_->abort();
}

}  // namespace verlume::qt
