#include "platform_qt/net/connection.h"

#include <sys/socket.h>

#include <algorithm>
#include <utility>

#include "platform_qt/net/socket_options.h"
#include "richtext/code_pages.h"

namespace verlume::qt {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// From Close to the end of the connection.
constexpr std::chrono::seconds kClosingLimit = Connection::kSendingLimit + std::chrono::seconds(1);

std::string_view View(const QByteArray& bytes) {
  return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace

Connection::Connection(QTcpSocket* socket, QThread& network, milliseconds timeout, Events events)
    : socket_(socket),
      events_(std::move(events)),
      isOpen_(socket->state() == QAbstractSocket::ConnectedState),
      assembler_(timeout) {
  socket_->disconnect();
  socket_->setParent(this);
  timeout_.setSingleShot(true);
  timeout_.setTimerType(Qt::PreciseTimer);
  connect(&timeout_, &QTimer::timeout, this, &Connection::DeliverOverdue);
  moveToThread(&network);
  QMetaObject::invokeMethod(this, &Connection::Start, Qt::QueuedConnection);
}

Connection::~Connection() {
  // The socket's signals must not reach members that are already destroyed.
  socket_->disconnect();
}

void Connection::Start() {
  CheckThread();
  sender_ = new Sender(socket_);
  sender_->onAcknowledged = [this](std::size_t lines) { OnAcknowledged(lines); };
  // The system tells what the peer's machine has acknowledged only until the connection ends.
  connect(socket_, &QTcpSocket::stateChanged, sender_, &Sender::Flush);
  connect(socket_, &QTcpSocket::readyRead, this, &Connection::Read);
  connect(socket_, &QTcpSocket::disconnected, this, &Connection::OnDisconnected);
  SetConnectionOptions(*socket_);
  // Signals for what came before, or for the end of the connection, found no receiver.
  Read();
  if (socket_->state() != QAbstractSocket::ConnectedState) OnDisconnected();
}

void Connection::Send(stream::OutgoingText text) {
  if (text.kind == TextKind::Line) ++linesWaiting_;
  QMetaObject::invokeMethod(
      this, [this, text = std::move(text)]() mutable { sender_->Send(std::move(text)); },
      Qt::QueuedConnection);
}

void Connection::OnAcknowledged(std::size_t lines) {
  CheckThread();
  linesWaiting_ -= lines;
  if (lines > 0) events_.onAcknowledged();
}

std::optional<std::u16string> Connection::NextArrival() {
  auto taken = arrivals_.Take();
  if (!taken) return std::nullopt;
  if (taken->madeRoom) {
    QMetaObject::invokeMethod(this, &Connection::ResumeReading, Qt::QueuedConnection);
  }
  return std::move(taken->arrival);
}

void Connection::Read() {
  CheckThread();
  // A connection that was reset has nothing left to read, and is not open.
  while (socket_->isOpen() && socket_->bytesAvailable() > 0 && !arrivals_.IsFull()) {
    const QByteArray bytes = socket_->read(kReadSize);
    AcknowledgeAtOnce(*socket_);
    assembler_.Add(View(bytes), steady_clock::now());
    Deliver();
  }
}

void Connection::ResumeReading() {
  CheckThread();
  assembler_.RestartTimeout(steady_clock::now());
  Read();
  DeliverOverdue();
}

// The timeout does not count while nothing is read.
void Connection::DeliverOverdue() {
  CheckThread();
  if (!arrivals_.IsFull()) Deliver();
}

void Connection::Deliver() {
  CheckThread();
  while (const auto arrival = assembler_.Take(steady_clock::now())) Enqueue(*arrival);
  timeout_.stop();
  if (const auto deadline = assembler_.Deadline()) {
    const auto rest = std::chrono::ceil<milliseconds>(*deadline - steady_clock::now());
    timeout_.start(std::max(rest, milliseconds(0)));
  }
}

void Connection::Enqueue(std::string_view arrival) {
  CheckThread();
  if (arrivals_.Add(richtext::DecodeGreek(arrival))) events_.onArrival();
}

void Connection::OnDisconnected() {
  CheckThread();
  timeout_.stop();
  if (socket_->isOpen()) assembler_.Add(View(socket_->readAll()), steady_clock::now());
  if (const auto rest = assembler_.Flush()) Enqueue(*rest);
  arrivals_.End();
  isOpen_ = false;
  events_.onArrival();
}

void Connection::Close() {
  isOpen_ = false;
  QMetaObject::invokeMethod(this, &Connection::StartClosing, Qt::QueuedConnection);
}

void Connection::StartClosing() {
  CheckThread();
  socket_->disconnect(this);
  timeout_.stop();
  if (socket_->state() != QAbstractSocket::ConnectedState) return Abort();
  connect(socket_, &QTcpSocket::readyRead, this, [this] { socket_->readAll(); });
  connect(socket_, &QTcpSocket::disconnected, this, &Connection::Abort);
  QTimer::singleShot(kSendingLimit, this, [this] {
    if (!sender_->IsDone()) Abort();
  });
  QTimer::singleShot(kClosingLimit, this, &Connection::Abort);
  sender_->onAcknowledged = [this](std::size_t lines) {
    linesWaiting_ -= lines;
    ShutDownSending();
  };
  socket_->readAll();
  ShutDownSending();
}

// Half-closes the connection once everything is sent. A full close while bytes are unread would
// reset it, and the peer would lose what it has not read yet.
void Connection::ShutDownSending() {
  CheckThread();
  if (!sender_->IsDone()) return;
  ::shutdown(static_cast<int>(socket_->socketDescriptor()), SHUT_WR);
  WakeFinishSending();
}

void Connection::WakeFinishSending() {
  CheckThread();
  const std::lock_guard lock(sendingMutex_);
  hasSendingEnded_ = true;
  sendingEnded_.notify_all();
}

void Connection::Abort() {
  CheckThread();
  if (isClosed_) return;
  socket_->disconnect(this);
  socket_->abort();
  isClosed_ = true;
  WakeFinishSending();
  events_.onClosed();
}

void Connection::FinishSending(stream::TimePoint deadline) {
  std::unique_lock lock(sendingMutex_);
  const bool hasEnded =
      sendingEnded_.wait_until(lock, deadline, [this] { return hasSendingEnded_; });
  lock.unlock();
  if (!hasEnded) QMetaObject::invokeMethod(this, &Connection::Abort, Qt::BlockingQueuedConnection);
}

}  // namespace verlume::qt
