#include "platform_qt/net/socket.h"

#include <QCoreApplication>
#include <QElapsedTimer>
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

namespace verlume::qt {
namespace {

constexpr std::chrono::seconds kConnectLimit{15};
constexpr std::chrono::seconds kAcceptPause{1};
constexpr std::chrono::milliseconds kHeldRequestPause{10};
// What a caller may send before it is accepted, and what Qt reads ahead afterwards.
constexpr qint64 kReadBuffer = Connection::kReadSize;
constexpr std::int32_t kLastPort = 65535;
// How long arrivals are raised before other events are handled.
constexpr std::chrono::milliseconds kTurn{5};

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

CallFailure FailureOf(QAbstractSocket::SocketError error) {
  switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
      return CallFailure::Refused;
    case QAbstractSocket::HostNotFoundError:
      return CallFailure::UnknownHost;
    case QAbstractSocket::SocketTimeoutError:
      return CallFailure::Silent;
    case QAbstractSocket::NetworkError:
      return CallFailure::Unreachable;
    default:
      return CallFailure::Other;
  }
}

}  // namespace

QtSocket::QtSocket(std::chrono::milliseconds timeout, std::string keyFile)
    : privacy_(std::move(keyFile), [this] { AdmitPeer(); }), timeout_(timeout) {
  network_.setObjectName("network");
  network_.start();
  server_.setProxy(QNetworkProxy::NoProxy);
  // One caller is asked about; the others wait in the system's backlog.
  server_.setMaxPendingConnections(1);
  connect(&server_, &QTcpServer::newConnection, this,
          [this] { Post(&QtSocket::RaiseConnectionRequest); });
  // The system has no descriptor or memory left: the server has stopped, the caller still waits.
  connect(&server_, &QTcpServer::acceptError, this, [this] { acceptPause_.start(kAcceptPause); });
  acceptPause_.setSingleShot(true);
  connect(&acceptPause_, &QTimer::timeout, &server_, &QTcpServer::resumeAccepting);
  connectLimit_.setSingleShot(true);
  connectLimit_.setTimerType(Qt::PreciseTimer);
  connect(&connectLimit_, &QTimer::timeout, this, &QtSocket::GiveUpCall);
}

QtSocket::~QtSocket() {
  onUndelivered = nullptr;
  Close();
  AbortCaller();
  FinishSending();
  closing_.clear();
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
  // A connection may have ended although onClose has not been raised yet.
  const bool hasEnded = connection_ && !connection_->IsOpen();
  return hasEnded ? SocketState::Closed : state_;
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
  if (holdsRequests_ && holdsRequests_()) {
    QTimer::singleShot(kHeldRequestPause, this,
                       [this] { Post(&QtSocket::RaiseConnectionRequest); });
    return;
  }
  QTcpSocket* socket = server_.nextPendingConnection();
  if (!socket) return;
  // A caller that has reset the connection already has no address, and is not asked about. The
  // server goes on to the next one.
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
  PrivacyTerms terms = privacy_.TermsFor(stream::Role::Callee);
  const bool mayBegin = privacy_.MayBegin(terms);
  if (!mayBegin) Abort(caller.socket);
  if (!caller.socket || !mayBegin) return Post(&QtSocket::EndConnection);
  StartConnection(caller.socket, std::move(terms));
  peer_ = caller.peer;
}

void QtSocket::Reject(std::int64_t requestId) {
  if (!caller_.socket || requestId != caller_.id || state_ != SocketState::Listening) return;
  AbortCaller();
  peer_ = {};
  server_.resumeAccepting();
}

void QtSocket::Connect() {
  Close();
  callFailure_ = CallFailure::None;
  state_ = SocketState::Connecting;
  const QString host = HostToCall(remoteHost_);
  callTerms_ = privacy_.TermsFor(stream::Role::Caller);
  const bool mayBegin = privacy_.MayBegin(callTerms_);
  if (host.isEmpty() || remotePort_ <= 0 || remotePort_ > kLastPort || !mayBegin) {
    return FailCall(CallFailure::Other);
  }
  auto* socket = new QTcpSocket(this);
  socket->setProxy(QNetworkProxy::NoProxy);
  socket->setReadBufferSize(kReadBuffer);
  connect(socket, &QTcpSocket::connected, this, [this] {
    peer_ = PeerOf(*calling_);
    localPort_ = calling_->localPort();
    Post(&QtSocket::RaiseConnect);
  });
  connect(socket, &QTcpSocket::errorOccurred, this, [this] { Post(&QtSocket::EndCall); });
  calling_ = socket;
  connectLimit_.start(kConnectLimit);
  if (QHostAddress(host).isNull()) {
    LookUp(host);
  } else {
    socket->connectToHost(host, static_cast<quint16>(remotePort_));
  }
}

// QTcpSocket could look the name up itself, but would not tell until when the system is busy with
// it; it finds the answer in Qt's cache. The receiver of the answer is the application, because Qt
// leaks the answer to a receiver that has been destroyed.
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
  if (found.error() != QHostInfo::NoError) return FailCall(CallFailure::UnknownHost);
  calling_->connectToHost(found.hostName(), static_cast<quint16>(remotePort_));
}

void QtSocket::RaiseConnect() {
  connectLimit_.stop();
  StartConnection(std::exchange(calling_, nullptr), std::move(callTerms_));
  if (onConnect) onConnect();
}

void QtSocket::StartConnection(QTcpSocket* socket, PrivacyTerms terms) {
  const auto post = [this, generation = generation_](void (QtSocket::*step)()) {
    return [this, step, generation] { Post(step, generation); };
  };
  const auto removeClosed = [this] {
    QMetaObject::invokeMethod(this, &QtSocket::RemoveClosed, Qt::QueuedConnection);
  };
  connection_.reset(new Connection(
      socket, network_, timeout_,
      {post(&QtSocket::DeliverArrival), post(&QtSocket::RaiseAcknowledged), removeClosed,
       [this, generation = generation_](Privacy privacy) { PostPrivacy(privacy, generation); },
       post(&QtSocket::RaisePeerKnown)},
      std::move(terms), ++lastConnection_));
  state_ = SocketState::Connected;
}

void QtSocket::PostPrivacy(Privacy privacy, std::uint64_t generation) {
  QMetaObject::invokeMethod(
      this,
      [this, privacy, generation] {
        if (generation == generation_) privacy_.OnState(privacy);
      },
      Qt::QueuedConnection);
}

void QtSocket::RaisePeerKnown() {
  auto known = connection_->WhoIsThere();
  if (known) privacy_.OnPeerKnown(std::move(known->peer), std::move(known->key));
}

void QtSocket::AdmitPeer() {
  if (!connection_) return;
  connection_->Admit();
  Post(&QtSocket::DeliverArrival);
}

void QtSocket::RaiseAcknowledged() {
  if (onAcknowledged) onAcknowledged();
}

// Those that wait are raised together, for a while: the window is painted once for all of them.
void QtSocket::DeliverArrival() {
  const QPointer self(this);
  const std::uint64_t generation = generation_;
  QElapsedTimer turn;
  turn.start();
  while (self && generation == generation_ && !arrivalsPaused_ && !turn.hasExpired(kTurn.count())) {
    if (connection_->IsOver()) return EndConnection();
    if (!connection_->IsAdmitted()) return connection_->IsOpen() ? void() : EndConnection();
    auto arrival = connection_->NextArrival();
    if (!arrival) return;
    // Posted before the handler runs, which may open a modal box.
    if (connection_->HasArrival() || connection_->IsOver()) Post(&QtSocket::DeliverArrival);
    RaiseArrival(std::move(*arrival));
  }
}

void QtSocket::ResumeArrivals() {
  if (!std::exchange(arrivalsPaused_, false)) return;
  if (connection_) Post(&QtSocket::DeliverArrival);
}

void QtSocket::FailCall(CallFailure failure) {
  callFailure_ = failure;
  Post(&QtSocket::EndConnection);
}

// A call that has been answered meanwhile ends like any connection, after its arrivals.
void QtSocket::EndCall() {
  if (!calling_) return;
  callFailure_ = FailureOf(calling_->error());
  EndConnection();
}

// Before the name has been found, nobody has been called.
void QtSocket::GiveUpCall() {
  const bool isLookingUp = calling_->state() == QAbstractSocket::UnconnectedState;
  callFailure_ = isLookingUp ? CallFailure::UnknownHost : CallFailure::Silent;
  EndConnection();
}

void QtSocket::EndConnection() {
  const ConnectionOwner ended = std::move(connection_);
  if (ended) privacy_.OnFailed(ended->Failure());
  Close();
  if (ended) privacy_.OnGoodbye(ended->HasPeerSaidGoodbye());
  if (ended) RaiseUndelivered(*ended);
  if (onClose) onClose();
}

void QtSocket::RaiseUndelivered(const Connection& ended) {
  const std::size_t lines = ended.LinesWaiting();
  if (lines > 0 && onUndelivered) onUndelivered(lines, ended.Number());
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
  privacy_.OnLeft();
  PostPrivacy(Privacy::None, generation_);
  arrival_.clear();
  connectLimit_.stop();
  acceptPause_.stop();
  server_.close();
  StartClosing();
  // The caller that is asked about is kept for an Accept that follows at once.
  if (caller_.socket) Post(&QtSocket::AbortCaller);
}

void QtSocket::StartClosing() {
  if (connection_) {
    connection_->Close();
    closing_.push_back(std::move(connection_));
  }
  Abort(std::exchange(calling_, nullptr));
}

// First removes, then raises: a handler of onUndelivered may close another connection.
void QtSocket::RemoveClosed() {
  const auto isClosed = [](const ConnectionOwner& connection) { return connection->IsClosed(); };
  const auto first = std::stable_partition(closing_.begin(), closing_.end(), std::not_fn(isClosed));
  const std::vector<ConnectionOwner> closed(std::make_move_iterator(first),
                                            std::make_move_iterator(closing_.end()));
  closing_.erase(first, closing_.end());
  for (const ConnectionOwner& connection : closed) RaiseUndelivered(*connection);
}

void QtSocket::AbortCaller() {
  Abort(std::exchange(caller_, {}).socket);
}

void QtSocket::Abort(QTcpSocket* socket) {
  if (!socket) return;
  socket->disconnect();
  socket->abort();
  socket->deleteLater();
}

bool QtSocket::SendData(std::u16string_view text, TextKind kind) {
  if (State() != SocketState::Connected) return false;
  connection_->Send(text, kind);
  return true;
}

std::size_t QtSocket::LinesWaiting() const {
  return State() == SocketState::Connected ? connection_->LinesWaiting() : 0;
}

void QtSocket::FinishSending() {
  const auto deadline = std::chrono::steady_clock::now() + Connection::kSendingLimit;
  for (const ConnectionOwner& connection : closing_) connection->FinishSending(deadline);
  RemoveClosed();
}

std::u16string QtSocket::GetData() {
  return std::exchange(arrival_, {});
}

}  // namespace verlume::qt
