#include "platform_qt/qt_socket.h"

#include <QCoreApplication>
#include <QHostInfo>
#include <QNetworkProxy>
#include <QPointer>
#include <QRandomGenerator>
#include <algorithm>
#include <utility>

#include "platform/run_time_failure.h"
#include "platform_qt/qt_socket_address.h"
#include "platform_qt/qt_socket_linger.h"
#include "platform_qt/qt_socket_options.h"
#include "platform_qt/qt_text.h"
#include "richtext/code_pages.h"

namespace verlume::qt {
namespace {

constexpr int kConnectLimit = 15000;  // ms
constexpr int kAcceptPause = 1000;    // ms
// What one turn of the event loop reads at most: a peer that floods is slowed down by TCP, and the
// windows stay responsive.
constexpr qint64 kLargestRead = 256 << 10;
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
  clock_.start();
  server_.setProxy(QNetworkProxy::NoProxy);
  // One caller is taken and asked about; those behind it wait in the system's backlog.
  server_.setMaxPendingConnections(1);
  connect(&server_, &QTcpServer::newConnection, this,
          [this] { Post(&QtSocket::RaiseConnectionRequest); });
  // The system was out of descriptors or memory: the server has stopped, the caller still waits.
  connect(&server_, &QTcpServer::acceptError, this, [this] { acceptPause_.start(kAcceptPause); });
  acceptPause_.setSingleShot(true);
  connect(&acceptPause_, &QTimer::timeout, &server_, &QTcpServer::resumeAccepting);
  patience_.setSingleShot(true);
  patience_.setTimerType(Qt::PreciseTimer);
  connect(&patience_, &QTimer::timeout, this, &QtSocket::LosePatience);
  connectLimit_.setSingleShot(true);
  connectLimit_.setTimerType(Qt::PreciseTimer);
  connect(&connectLimit_, &QTimer::timeout, this, [this] { Lose(); });
}

QtSocket::~QtSocket() {
  onUndelivered = nullptr;
  Close();
  DropCaller();
  FinishSending();
}

void QtSocket::Post(void (QtSocket::*step)()) {
  QMetaObject::invokeMethod(
      this,
      [this, step, generation = generation_] {
        if (generation == generation_) (this->*step)();
      },
      Qt::QueuedConnection);
}

SocketState QtSocket::State() const {
  // The system may have ended a connection whose end is still to be raised.
  const bool isGone =
      state_ == SocketState::Connected && socket_->state() != QAbstractSocket::ConnectedState;
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
  socket->setReadBufferSize(kLargestRead);
  caller_ = {socket, ++lastRequest_, PeerOf(*socket)};
  peer_ = caller_.peer;
  if (onConnectionRequest) onConnectionRequest(caller_.id);
}

void QtSocket::Accept(std::int64_t requestId) {
  const Caller caller = requestId == caller_.id ? std::exchange(caller_, {}) : Caller{};
  Close();
  if (!caller.socket) return Post(&QtSocket::Lose);
  Hold(caller.socket);
  BeginConnection();
  peer_ = caller.peer;
  // What the caller sent, or that it has left, was signalled while nobody listened.
  Post(&QtSocket::Read);
  if (State() != SocketState::Connected) Post(&QtSocket::Finish);
}

// Makes the signals of a socket into events of the connection that begins.
void QtSocket::Hold(QTcpSocket* socket) {
  socket_ = socket;
  connect(socket, &QTcpSocket::readyRead, this, [this] { Post(&QtSocket::Read); });
  connect(socket, &QTcpSocket::disconnected, this, [this] { Post(&QtSocket::Finish); });
  connect(socket, &QTcpSocket::errorOccurred, this, [this] { Post(&QtSocket::Finish); });
}

void QtSocket::Connect() {
  Close();
  state_ = SocketState::Connecting;
  const QString host = HostToCall(remoteHost_);
  if (host.isEmpty() || remotePort_ <= 0 || remotePort_ > kLastPort) return Post(&QtSocket::Lose);
  auto* socket = new QTcpSocket(this);
  socket->setProxy(QNetworkProxy::NoProxy);
  socket->setReadBufferSize(kLargestRead);
  connect(socket, &QTcpSocket::connected, this, [this] {
    peer_ = PeerOf(*socket_);
    localPort_ = socket_->localPort();
    Post(&QtSocket::RaiseConnect);
  });
  Hold(socket);
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
  socket_->connectToHost(found.hostName(), static_cast<quint16>(remotePort_));
}

void QtSocket::RaiseConnect() {
  connectLimit_.stop();
  BeginConnection();
  if (onConnect) onConnect();
}

void QtSocket::BeginConnection() {
  SetConnectionOptions(*socket_);
  sender_ = new Sender(socket_);
  sender_->onAcknowledged = [this] { Post(&QtSocket::RaiseAcknowledged); };
  // What the peer's machine has acknowledged can no longer be asked once the connection has ended.
  connect(socket_, &QTcpSocket::stateChanged, sender_, [sender = sender_] { sender->GoOn(); });
  state_ = SocketState::Connected;
}

void QtSocket::RaiseAcknowledged() {
  if (onAcknowledged) onAcknowledged();
}

void QtSocket::Read() {
  // It may be cut, with all that had not been read.
  if (!socket_->isOpen() || MustWait()) return;
  const QByteArray bytes = socket_->read(kLargestRead);
  AcknowledgeAtOnce(*socket_);
  assembler_.Add({bytes.data(), static_cast<std::size_t>(bytes.size())}, clock_.elapsed());
  RaiseArrival(assembler_.Take(clock_.elapsed()));
}

// The connection has ended, or could not be made: what arrived before comes first.
void QtSocket::Finish() {
  if (socket_->state() != QAbstractSocket::UnconnectedState || MustWait()) return;
  Post(&QtSocket::Lose);
  const QByteArray bytes = socket_->isOpen() ? socket_->readAll() : QByteArray();
  assembler_.Add({bytes.data(), static_cast<std::size_t>(bytes.size())}, clock_.elapsed());
  RaiseArrival(assembler_.TakeAll());
}

void QtSocket::GoOn() {
  if (!socket_) return;
  assembler_.StartWaitingAnew(clock_.elapsed());
  Post(&QtSocket::Read);
  Post(&QtSocket::Finish);
}

void QtSocket::LosePatience() {
  if (!MustWait()) RaiseArrival(assembler_.Take(clock_.elapsed()));
}

void QtSocket::Lose() {
  const std::size_t undelivered = sender_ ? sender_->LinesWaiting() : 0;
  Close();
  if (undelivered > 0) RaiseUndelivered(undelivered);
  if (onClose) onClose();
}

void QtSocket::RaiseUndelivered(std::size_t lines) {
  if (onUndelivered) onUndelivered(lines);
}

void QtSocket::RaiseArrival(std::optional<std::string> bytes) {
  patience_.stop();
  if (const auto deadline = assembler_.Deadline()) {
    patience_.start(static_cast<int>(std::max<std::int64_t>(0, *deadline - clock_.elapsed())));
  }
  if (!bytes) return;
  arrival_ = richtext::DecodeGreek(*bytes);
  if (onDataArrival) onDataArrival(static_cast<std::int32_t>(bytes->size()));
}

void QtSocket::Close() {
  ++generation_;
  state_ = SocketState::Closed;
  peer_ = {};
  arrival_.clear();
  assembler_ = ArrivalAssembler(patienceForTheRest_);
  patience_.stop();
  connectLimit_.stop();
  acceptPause_.stop();
  server_.close();
  Release();
  // The caller that is being asked about is kept for an Accept that follows at once.
  if (caller_.socket) Post(&QtSocket::DropCaller);
}

void QtSocket::Release() {
  QTcpSocket* socket = std::exchange(socket_, nullptr);
  Sender* sender = std::exchange(sender_, nullptr);
  if (!socket) return;
  LetLinger(socket, sender, this, [this](std::size_t lines) { RaiseUndelivered(lines); });
}

void QtSocket::DropCaller() {
  QTcpSocket* socket = std::exchange(caller_, {}).socket;
  if (!socket) return;
  socket->abort();
  socket->deleteLater();
}

void QtSocket::SendData(std::u16string_view text, TextKind kind) {
  if (State() != SocketState::Connected) return;
  sender_->Send({richtext::EncodeGreek(text), kind});
}

std::size_t QtSocket::LinesWaiting() const {
  return State() == SocketState::Connected ? sender_->LinesWaiting() : 0;
}

void QtSocket::FinishSending() {
  FinishLingering(this);
}

std::u16string QtSocket::GetData() {
  return std::exchange(arrival_, {});
}

}  // namespace verlume::qt
