// A road over the bare TCP connection.
#pragma once

#include <QTcpSocket>

#include "platform_qt/net/road.h"
#include "platform_qt/net/sender.h"

namespace verlume::qt {

class TcpRoad : public Road {
 public:
  // The sender is the socket's.
  TcpRoad(QTcpSocket* socket, Sender* sender, Events events);

  void Send(Said said) override;
  void Close() override;
  void Abort() override;

 protected:
  // Connects the socket's signals with these.
  void Listen();
  virtual void Read() = 0;
  virtual void OnDisconnected() = 0;

  QTcpSocket& Socket() { return *socket_; }
  const QTcpSocket& Socket() const { return *socket_; }
  Sender& Sending() { return *sender_; }

 private:
  void ShutDownSending();

  QTcpSocket* const socket_;
  Sender* const sender_;
};

}  // namespace verlume::qt
