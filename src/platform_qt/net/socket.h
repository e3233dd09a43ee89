// The TCP socket made real by Qt Network.
//
// Every signal of Qt's becomes an event of the queue, which carries the generation of the
// connection it belongs to: so no event comes from inside an operation, handlers may open modal
// boxes (further events are raised inside those), and an ended connection raises nothing more. A
// connection that is made lives on a thread of its own.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>
#include <vector>

#include "platform/socket.h"
#include "platform_qt/net/connection.h"

class QHostInfo;

namespace verlume::qt {

class QtSocket : public QObject, public Socket {
 public:
  // `patienceForTheRest` is how long a text may wait for its next byte, in milliseconds.
  explicit QtSocket(std::int64_t patienceForTheRest = stream::ArrivalAssembler::kPatience);
  // Sends what was handed over before, for a few seconds at most.
  ~QtSocket() override;

  SocketState State() const override;
  void SetLocalPort(std::int32_t port) override { localPort_ = port; }
  std::int32_t LocalPort() const override { return localPort_; }
  void SetRemoteHost(std::u16string_view host) override;
  void SetRemotePort(std::int32_t port) override { remotePort_ = port; }
  std::u16string RemoteHostIP() const override;
  std::int32_t RemotePort() const override;
  std::u16string LocalIP() const override;
  std::u16string LocalHostName() const override;
  void Listen() override;
  void Connect() override;
  void Accept(std::int64_t requestId) override;
  void Close() override;
  void SendData(std::u16string_view text, TextKind kind) override;
  std::size_t LinesWaiting() const override;
  void FinishSending() override;
  std::u16string GetData() override;

  // Whether the system is still busy with the name of a host, be the call cancelled or not. It
  // cannot be stopped, and the end of the application waits for it.
  bool IsLookingUp() const { return lookUps_ > 0; }
  // While this is true no arrival is raised; those that come wait, some mebibytes of them, and then
  // the peer is slowed down. GoOn when it no longer is.
  std::function<bool()> mustWait;
  void GoOn();

 private:
  // Who is at the other end, or asks to be.
  struct Peer {
    QString address;  // "" for nobody
    std::int32_t port = 0;
  };
  struct Caller {
    QTcpSocket* socket = nullptr;
    std::int64_t id = 0;
    Peer peer;
  };

  static Peer PeerOf(const QTcpSocket& socket);

  // Runs a step from the event loop, unless the connection has ended by then.
  void Post(void (QtSocket::*step)()) { Post(step, generation_); }
  void Post(void (QtSocket::*step)(), std::uint64_t generation);
  void LookUp(const QString& host);
  void TakeLookUp(const QHostInfo& found, std::uint64_t generation);
  void Release();
  void DropCaller();
  static void Drop(QTcpSocket* socket);

  void RaiseConnectionRequest();
  void RaiseConnect();
  void BeginConnection(QTcpSocket* socket);
  void RaiseAcknowledged();
  void RaiseUndelivered(std::size_t lines);
  bool MustWait() const { return mustWait && mustWait(); }
  void TakeArrival();
  void LoseCall();
  void Lose();
  void LookAtThoseLeaving();
  void RaiseArrival(std::u16string arrival);

  QTcpServer server_;
  QTcpSocket* calling_ = nullptr;  // until the connection is made
  Caller caller_;                  // the one that is being asked about
  QThread network_{this};          // of the connections that are made
  ConnectionOwner connection_;
  std::vector<ConnectionOwner> leaving_;  // closed, but not gone yet
  Peer peer_;
  std::int64_t lastRequest_ = 0;
  int lookUps_ = 0;  // under way

  SocketState state_ = SocketState::Closed;
  std::uint64_t generation_ = 0;
  std::int32_t localPort_ = 0;
  QString remoteHost_;
  std::int32_t remotePort_ = 0;

  const std::int64_t patienceForTheRest_;
  std::u16string arrival_;
  QTimer connectLimit_;  // for a call to be answered
  QTimer acceptPause_;   // after a caller that could not be taken
};

}  // namespace verlume::qt
