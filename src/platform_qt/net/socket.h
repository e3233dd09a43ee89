// The TCP socket made real by Qt Network.
//
// Every signal of Qt is posted to the event loop, together with the generation of the connection
// that it belongs to. So no event is raised from inside an operation, handlers may open modal boxes
// (further events are raised inside those), and a connection that has ended raises nothing more.
// Established connections live on the network thread (connection.h), all else on the
// user-interface thread.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>
#include <chrono>
#include <vector>

#include "platform/socket.h"
#include "platform_qt/net/connection.h"
#include "platform_qt/net/peer_privacy.h"

class QHostInfo;

namespace verlume::qt {

class QtSocket : public QObject, public Socket {
 public:
  // `timeout` is how long an incomplete text waits for its next byte; `keyFile` is where the key
  // of this folder of the program is kept.
  explicit QtSocket(std::chrono::milliseconds timeout = stream::ArrivalAssembler::kTimeout,
                    std::string keyFile = {});
  // Blocks until what is queued has been sent, for 2 s at most.
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
  CallFailure LastCallFailure() const override { return callFailure_; }
  void Accept(std::int64_t requestId) override;
  void Reject(std::int64_t requestId) override;
  void Close() override;
  bool SendData(std::u16string_view text, TextKind kind) override;
  std::size_t LinesWaiting() const override;
  ConnectionNumber CurrentConnection() const override { return lastConnection_; }
  void FinishSending() override;
  std::u16string GetData() override;
  void PauseArrivals() override { arrivalsPaused_ = true; }
  void ResumeArrivals() override;
  bool ArrivalsPaused() const override { return arrivalsPaused_; }

  // Who the peers of this socket's connections are.
  QtPeerPrivacy& ConnectionPrivacy() { return privacy_; }

  // While this holds no connection request is raised; the caller waits.
  void HoldRequestsWhile(std::function<bool()> condition) { holdsRequests_ = std::move(condition); }

  // Whether the system is still looking up a host name, even of a cancelled call. It cannot be
  // stopped, and the end of the application waits for it.
  bool IsLookingUp() const { return lookUps_ > 0; }

 private:
  // The peer, or a caller.
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

  // Runs a step from the event loop, unless the connection has ended by then. Steps may be posted
  // from the network thread too.
  void Post(void (QtSocket::*step)()) { Post(step, generation_); }
  void Post(void (QtSocket::*step)(), std::uint64_t generation);
  void LookUp(const QString& host);
  void TakeLookUp(const QHostInfo& found, std::uint64_t generation);
  void StartClosing();
  void AbortCaller();
  static void Abort(QTcpSocket* socket);

  void RaiseConnectionRequest();
  void RaiseConnect();
  void StartConnection(QTcpSocket* socket, PrivacyTerms terms);
  void PostPrivacy(Privacy privacy, std::uint64_t generation);
  void RaisePeerKnown();
  void AdmitPeer();
  void RaiseAcknowledged();
  void RaiseUndelivered(const Connection& ended);
  void DeliverArrival();
  // Ends a call that cannot be tried at all.
  void FailCall(CallFailure failure);
  void EndCall();
  void GiveUpCall();
  void EndConnection();
  void RemoveClosed();
  void RaiseArrival(std::u16string arrival);

  QTcpServer server_;
  QtPeerPrivacy privacy_;
  QTcpSocket* calling_ = nullptr;  // of a call, until it is answered
  PrivacyTerms callTerms_;         // likewise
  Caller caller_;                  // the one that is asked about
  QThread network_{this};          // where established connections live
  ConnectionOwner connection_;
  std::vector<ConnectionOwner> closing_;
  Peer peer_;
  std::int64_t lastRequest_ = 0;
  ConnectionNumber lastConnection_ = 0;
  int lookUps_ = 0;  // under way
  std::function<bool()> holdsRequests_;

  SocketState state_ = SocketState::Closed;
  std::uint64_t generation_ = 0;
  std::int32_t localPort_ = 0;
  QString remoteHost_;
  std::int32_t remotePort_ = 0;
  CallFailure callFailure_ = CallFailure::None;

  const std::chrono::milliseconds timeout_;
  std::u16string arrival_;
  bool arrivalsPaused_ = false;
  QTimer connectLimit_;  // of a call that is not answered
  QTimer acceptPause_;   // after a caller that could not be accepted
};

}  // namespace verlume::qt
