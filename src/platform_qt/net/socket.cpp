#include "platform_qt/net/socket.h"

#include <QCoreApplication>
#include <QHostInfo>
#include <QNetworkProxy>
#include <QPointer>
#include <QRandomGenerator>
#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/net/socket_address.h"
#include "richtext/code_pages.h"

namespace verlume::qt {
namespace {

constexpr int kConnectLimit = 15000;  // ms
constexpr int kAcceptPause = 1000;    // ms
// What a caller may send before it is taken, and what is read ahead afterwards.
constexpr qint64 kReadBuffer = 256 << 10;
constexpr std::int32_t kLastPort = 65535;

// The system's own choice lies mostly above what a caller can name.
bool ListenOnFreePort(QTcpServer& server) {
  constexpr int kAttempts = 100;
  constexpr int kLeastFreePort = 10'000;  // below lie the well-known services
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const int port = QRandomGenerator::global()->bounded(kLeastFreePort, kGreatestNameablePort + 1);
    if (server.listen(QHostAddress::Any, static_cast<quint16>(port))) return true;
    if (server.serverError() != QAbstractSocket::AddressInUseError) return false;
  }
  return false;
}

}  // namespace

QtSocket::QtSocket(std::int64_t patienceForTheRest) : patienceForTheRest_(patienceForTheRest) {
  network_.setObjectName("network");
  network_.start();
  server_.setProxy(QNetworkProxy::NoProxy);
  // One caller is taken and asked about; those behind it wait in the system's backlog.
  server_.setMaxPendingConnections(1);
  connect(&server_, &QTcpServer::newConnection, this,
          [this] { Post(&QtSocket::RaiseConnectionRequest); });
  // The system was out of descriptors or memory: the server has stopped, the caller still waits.
  connect(&server_, &QTcpServer::acceptError, this, [this] { acceptPause_.start(kAcceptPause); });
  acceptPause_.setSingleShot(true);
  connect(&acceptPause_, &QTimer::timeout, &server_, &QTcpServer::resumeAccepting);
  connectLimit_.setSingleShot(true);
  connectLimit_.setTimerType(Qt::PreciseTimer);
  connect(&connectLimit_, &QTimer::timeout, this, [this] { Lose(); });
}

QtSocket::~QtSocket() {
  onUndelivered = nullptr;
  Close();
  DropCaller();
  FinishSending();
  leaving_.clear();
  network_.quit();
  network_.wait();
}

void QtSocket::Post(void (QtSocket::*step)(), std::uint64_t generation) {
  QMetaObject::invokeMethod(
      this,
      [this, step, generation] {
        if (generation == generation_) (this->*step)();
      },
      Qt::QueuedConnection);
}

SocketState QtSocket::State() const {
  // The system may have ended a connection whose end is still to be raised.
  const bool isGone = connection_ && !connection_->IsOpen();
  return isGone ? SocketState::Closed : state_;
}

void QtSocket::SetRemoteHost(std::u16string_view host) {
  remoteHost_ = ToQt(host);
}

std::u16string QtSocket::RemoteHostIP() const {
  return FromQt(peer_.address);
}

std::int32_t QtSocket::RemotePort() const {
  return peer_.address.isEmpty() ? remotePort_ : peer_.port;
}

std::u16string QtSocket::LocalIP() const {
  return FromQt(OwnAddress());
}

std::u16string QtSocket::LocalHostName() const {
  return FromQt(QHostInfo::localHostName());
}

QtSocket::Peer QtSocket::PeerOf(const QTcpSocket& socket) {
  return {AddressText(socket.peerAddress()), socket.peerPort()};
}

void QtSocket::Listen() {
  Close();
  if (localPort_ < 0 || localPort_ > kLastPort) {
    throw RunTimeFailure(FailureNumber::InvalidProcedureCall);
  }
  const bool isListening =
      localPort_ == 0 ? ListenOnFreePort(server_)
                      : server_.listen(QHostAddress::Any, static_cast<quint16>(localPort_));
  if (!isListening) {
    const bool isTaken = server_.serverError() == QAbstractSocket::AddressInUseError;
    throw RunTimeFailure(isTaken ? FailureNumber::AddressInUse : FailureNumber::PermissionDenied);
  }
  localPort_ = server_.serverPort();
  state_ = SocketState::Listening;
}

void QtSocket::RaiseConnectionRequest() {
  QTcpSocket* socket = server_.nextPendingConnection();
  if (!socket) return;
  // Who has cut the connection before it was taken has no address, and nobody is there to be asked
  // about. The server goes on to the next one.
  if (socket->peerAddress().isNull()) return socket->deleteLater();
  server_.pauseAccepting();
  socket->setParent(this);
  socket->setReadBufferSize(kReadBuffer);
  caller_ = {socket, ++lastRequest_, PeerOf(*socket)};
  peer_ = caller_.peer;
  if (onConnectionRequest) onConnectionRequest(caller_.id);
}

void QtSocket::Accept(std::int64_t requestId) {
  const Caller caller = requestId == caller_.id ? std::exchange(caller_, {}) : Caller{};
  Close();
  if (!caller.socket) return Post(&QtSocket::Lose);
  BeginConnection(caller.socket);
  peer_ = caller.peer;
}

void QtSocket::Connect() {
  Close();
  state_ = SocketState::Connecting;
  const QString host = HostToCall(remoteHost_);
  if (host.isEmpty() || remotePort_ <= 0 || remotePort_ > kLastPort) return Post(&QtSocket::Lose);
  auto* socket = new QTcpSocket(this);
  socket->setProxy(QNetworkProxy::NoProxy);
  socket->setReadBufferSize(kReadBuffer);
  connect(socket, &QTcpSocket::connected, this, [this] {
    peer_ = PeerOf(*calling_);
    localPort_ = calling_->localPort();
    Post(&QtSocket::RaiseConnect);
  });
  connect(socket, &QTcpSocket::errorOccurred, this, [this] { Post(&QtSocket::LoseCall); });
  calling_ = socket;
  connectLimit_.start(kConnectLimit);
  if (QHostAddress(host).isNull()) {
    LookUp(host);
  } else {
    socket->connectToHost(host, static_cast<quint16>(remotePort_));
  }
}

// The socket could do it itself, but would not tell how long the system is busy with it. What is
// found it finds in Qt's cache. The application receives the answer: Qt forgets to free what
// belongs to a receiver that has gone meanwhile.
void QtSocket::LookUp(const QString& host) {
  ++lookUps_;
  const auto take = [socket = QPointer(this), generation = generation_](const QHostInfo& found) {
    if (socket) socket->TakeLookUp(found, generation);
  };
  QHostInfo::lookupHost(host, QCoreApplication::instance(), take);
}

void QtSocket::TakeLookUp(const QHostInfo& found, std::uint64_t generation) {
  --lookUps_;
  if (generation != generation_) return;
  if (found.error() != QHostInfo::NoError) return Post(&QtSocket::Lose);
  calling_->connectToHost(found.hostName(), static_cast<quint16>(remotePort_));
}

void QtSocket::RaiseConnect() {
  connectLimit_.stop();
  BeginConnection(std::exchange(calling_, nullptr));
  if (onConnect) onConnect();
}

void QtSocket::BeginConnection(QTcpSocket* socket) {
  const auto post = [this, generation = generation_](void (QtSocket::*step)()) {
    return [this, step, generation] { Post(step, generation); };
  };
  const auto look = [this] {
    QMetaObject::invokeMethod(this, &QtSocket::LookAtThoseLeaving, Qt::QueuedConnection);
  };
  connection_.reset(
      new Connection(socket, network_, patienceForTheRest_,
                     {post(&QtSocket::TakeArrival), post(&QtSocket::RaiseAcknowledged), look}));
  state_ = SocketState::Connected;
}

void QtSocket::RaiseAcknowledged() {
  if (onAcknowledged) onAcknowledged();
}

void QtSocket::TakeArrival() {
  if (MustWait()) return;
  auto arrival = connection_->NextArrival();
  // Before the handlers, which may wait for the user.
  if (connection_->HasArrival()) Post(&QtSocket::TakeArrival);
  if (connection_->IsOver()) Post(&QtSocket::Lose);
  if (arrival) RaiseArrival(std::move(*arrival));
}

void QtSocket::GoOn() {
  if (connection_) Post(&QtSocket::TakeArrival);
}

// A call that was answered first may still have brought something.
void QtSocket::LoseCall() {
  if (calling_) Lose();
}

void QtSocket::Lose() {
  const ConnectionOwner lost = std::move(connection_);
  const std::size_t undelivered = lost ? lost->LinesWaiting() : 0;
  Close();
  if (undelivered > 0) RaiseUndelivered(undelivered);
  if (onClose) onClose();
}

void QtSocket::RaiseUndelivered(std::size_t lines) {
  if (onUndelivered) onUndelivered(lines);
}

void QtSocket::RaiseArrival(std::u16string arrival) {
  const auto bytes = static_cast<std::int32_t>(arrival.size());
  arrival_ = std::move(arrival);
  if (onDataArrival) onDataArrival(bytes);
}

void QtSocket::Close() {
  ++generation_;
  state_ = SocketState::Closed;
  peer_ = {};
  arrival_.clear();
  connectLimit_.stop();
  acceptPause_.stop();
  server_.close();
  Release();
  // The caller that is being asked about is kept for an Accept that follows at once.
  if (caller_.socket) Post(&QtSocket::DropCaller);
}

void QtSocket::Release() {
  if (connection_) {
    connection_->Leave();
    leaving_.push_back(std::move(connection_));
  }
  Drop(std::exchange(calling_, nullptr));
}

// Whoever is told of what did not arrive may close a connection.
void QtSocket::LookAtThoseLeaving() {
  const auto isGone = [](const ConnectionOwner& connection) { return connection->IsGone(); };
  const auto gone = std::stable_partition(leaving_.begin(), leaving_.end(), std::not_fn(isGone));
  const std::vector<ConnectionOwner> left(std::make_move_iterator(gone),
                                          std::make_move_iterator(leaving_.end()));
  leaving_.erase(gone, leaving_.end());
  for (const ConnectionOwner& connection : left) {
    if (const std::size_t lines = connection->LinesWaiting(); lines > 0) RaiseUndelivered(lines);
  }
}

void QtSocket::DropCaller() {
  Drop(std::exchange(caller_, {}).socket);
}

void QtSocket::Drop(QTcpSocket* socket) {
  if (!socket) return;
  socket->disconnect();
  socket->abort();
  socket->deleteLater();
}

void QtSocket::SendData(std::u16string_view text, TextKind kind) {
  if (State() != SocketState::Connected) return;
  connection_->Send({richtext::EncodeGreek(text), kind});
}

std::size_t QtSocket::LinesWaiting() const {
  return State() == SocketState::Connected ? connection_->LinesWaiting() : 0;
}

void QtSocket::FinishSending() {
  const QDeadlineTimer limit(kSendingLimit);
  for (const ConnectionOwner& connection : leaving_) connection->FinishSending(limit);
  LookAtThoseLeaving();
}

std::u16string QtSocket::GetData() {
  return std::exchange(arrival_, {});
}

}  // namespace verlume::qt
