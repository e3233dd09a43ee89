#include "platform_qt/qt_socket_linger.h"

#include <sys/socket.h>

#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>
#include <utility>

namespace verlume::qt {
namespace {

class Lingering : public QObject {
 public:
  Lingering(QTcpSocket* socket, Sender* sender, QObject* owner, UndeliveredHandler undelivered)
      : QObject(owner), socket_(socket), sender_(sender), undelivered_(std::move(undelivered)) {
    socket_->setParent(this);
    connect(socket_, &QTcpSocket::readyRead, this, [this] { socket_->readAll(); });
    connect(socket_, &QTcpSocket::disconnected, this, [this] { Cut(); });
    QTimer::singleShot(kSendingLimit, this, [this] {
      if (!IsSent()) Cut();
    });
    QTimer::singleShot(kLingerLimit, this, [this] { Cut(); });
    sender_->onAcknowledged = [this] { EndSending(); };
    socket_->readAll();
    EndSending();
  }

  bool IsSent() const { return sender_->IsDone(); }
  void GoOn() { sender_->GoOn(); }

  void Cut() {
    socket_->disconnect(this);
    socket_->abort();
    if (const auto undelivered = std::exchange(undelivered_, nullptr)) {
      if (sender_->LinesWaiting() > 0) undelivered(sender_->LinesWaiting());
    }
    deleteLater();
  }

 private:
  // Says that no more will be sent. Closing outright with arrivals unread would make the system
  // throw away what the peer has not read yet.
  void EndSending() {
    if (IsSent()) ::shutdown(static_cast<int>(socket_->socketDescriptor()), SHUT_WR);
  }

  QTcpSocket* socket_;
  Sender* sender_;
  UndeliveredHandler undelivered_;
};

}  // namespace

void LetLinger(QTcpSocket* socket, Sender* sender, QObject* owner, UndeliveredHandler undelivered) {
  socket->disconnect();
  if (sender && socket->state() == QAbstractSocket::ConnectedState) {
    new Lingering(socket, sender, owner, std::move(undelivered));
  } else {
    socket->abort();
    socket->deleteLater();
  }
}

void FinishLingering(QObject* owner) {
  constexpr unsigned long kLookEvery = 2;  // ms
  const QDeadlineTimer limit(kSendingLimit);
  // By value: whoever is told of what did not arrive may close a connection.
  const QObjectList children = owner->children();
  for (QObject* child : children) {
    auto* lingering = dynamic_cast<Lingering*>(child);
    while (lingering && !lingering->IsSent() && !limit.hasExpired()) {
      QThread::msleep(kLookEvery);
      lingering->GoOn();
    }
    if (lingering && !lingering->IsSent()) lingering->Cut();
  }
}

}  // namespace verlume::qt
