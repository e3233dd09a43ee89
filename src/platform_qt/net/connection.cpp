#include "platform_qt/net/connection.h"

#include <sys/socket.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform_qt/net/socket_options.h"
#include "richtext/code_pages.h"

namespace verlume::qt {
namespace {

// How much one read takes at most.
constexpr qint64 kLargestRead = 256 << 10;
constexpr int kLeavingLimit = 3000;  // ms

}  // namespace

Connection::Connection(QTcpSocket* socket, QThread& thread, std::int64_t patienceForTheRest,
                       Events events)
    : socket_(socket),
      events_(std::move(events)),
      isOpen_(socket->state() == QAbstractSocket::ConnectedState),
      assembler_(patienceForTheRest) {
  socket_->disconnect();
  socket_->setParent(this);
  clock_.start();
  patience_.setSingleShot(true);
  patience_.setTimerType(Qt::PreciseTimer);
  connect(&patience_, &QTimer::timeout, this, &Connection::LosePatience);
  moveToThread(&thread);
  QMetaObject::invokeMethod(this, &Connection::Begin, Qt::QueuedConnection);
}

Connection::~Connection() {
  // What happens to the socket now is nobody's any more.
  socket_->disconnect();
}

void Connection::Begin() {
  sender_ = new Sender(socket_);
  sender_->onAcknowledged = [this](std::size_t lines) { NoteAcknowledged(lines); };
  // What the peer's machine has acknowledged can no longer be asked once the connection has ended.
  connect(socket_, &QTcpSocket::stateChanged, sender_, [sender = sender_] { sender->GoOn(); });
  connect(socket_, &QTcpSocket::readyRead, this, &Connection::Read);
  connect(socket_, &QTcpSocket::disconnected, this, &Connection::End);
  SetConnectionOptions(*socket_);
  // What has come, or that the peer has left, was signalled while nobody listened.
  Read();
  if (socket_->state() != QAbstractSocket::ConnectedState) End();
}

void Connection::Send(stream::OutgoingText text) {
  if (text.kind == TextKind::Line) ++linesWaiting_;
  QMetaObject::invokeMethod(
      this, [this, text = std::move(text)]() mutable { sender_->Send(std::move(text)); },
      Qt::QueuedConnection);
}

void Connection::NoteAcknowledged(std::size_t lines) {
  linesWaiting_ -= lines;
  if (lines > 0) events_.onAcknowledged();
}

std::optional<std::u16string> Connection::NextArrival() {
  const bool wasFull = arrivals_.IsFull();
  auto arrival = arrivals_.Take();
  if (wasFull && !arrivals_.IsFull()) {
    QMetaObject::invokeMethod(this, &Connection::ReadOn, Qt::QueuedConnection);
  }
  return arrival;
}

void Connection::Read() {
  // A connection that was cut has nothing left, and is not open.
  while (socket_->isOpen() && socket_->bytesAvailable() > 0 && !arrivals_.IsFull()) {
    const QByteArray bytes = socket_->read(kLargestRead);
    AcknowledgeAtOnce(*socket_);
    assembler_.Add({bytes.data(), static_cast<std::size_t>(bytes.size())}, clock_.elapsed());
    HandOn();
  }
}

void Connection::ReadOn() {
  assembler_.StartWaitingAnew(clock_.elapsed());
  Read();
  LosePatience();
}

// A text is not overdue while nothing is read.
void Connection::LosePatience() {
  if (!arrivals_.IsFull()) HandOn();
}

void Connection::HandOn() {
  while (const auto arrival = assembler_.Take(clock_.elapsed())) Add(*arrival);
  patience_.stop();
  if (const auto deadline = assembler_.Deadline()) {
    patience_.start(static_cast<int>(std::max<std::int64_t>(0, *deadline - clock_.elapsed())));
  }
}

void Connection::Add(std::string_view arrival) {
  if (arrivals_.Add(richtext::DecodeGreek(arrival))) events_.onArrival();
}

void Connection::End() {
  patience_.stop();
  const QByteArray bytes = socket_->isOpen() ? socket_->readAll() : QByteArray();
  assembler_.Add({bytes.data(), static_cast<std::size_t>(bytes.size())}, clock_.elapsed());
  if (const auto rest = assembler_.TakeAll()) Add(*rest);
  arrivals_.End();
  isOpen_ = false;
  events_.onArrival();
}

void Connection::Leave() {
  isOpen_ = false;
  QMetaObject::invokeMethod(this, &Connection::BeginLeaving, Qt::QueuedConnection);
}

void Connection::BeginLeaving() {
  socket_->disconnect(this);
  patience_.stop();
  if (socket_->state() != QAbstractSocket::ConnectedState) return Cut();
  connect(socket_, &QTcpSocket::readyRead, this, [this] { socket_->readAll(); });
  connect(socket_, &QTcpSocket::disconnected, this, &Connection::Cut);
  QTimer::singleShot(kSendingLimit, this, [this] {
    if (!sender_->IsDone()) Cut();
  });
  QTimer::singleShot(kLeavingLimit, this, &Connection::Cut);
  sender_->onAcknowledged = [this](std::size_t lines) {
    linesWaiting_ -= lines;
    EndSending();
  };
  socket_->readAll();
  EndSending();
}

// Says that no more will be sent. Closing outright with arrivals unread would make the system throw
// away what the peer has not read yet.
void Connection::EndSending() {
  if (!sender_->IsDone()) return;
  ::shutdown(static_cast<int>(socket_->socketDescriptor()), SHUT_WR);
  NoteSent();
}

void Connection::NoteSent() {
  const std::lock_guard lock(sentMutex_);
  isSent_ = true;
  sent_.notify_all();
}

void Connection::Cut() {
  if (isGone_) return;
  socket_->disconnect(this);
  socket_->abort();
  isGone_ = true;
  NoteSent();
  events_.onGone();
}

void Connection::FinishSending(const QDeadlineTimer& limit) {
  const auto rest = std::chrono::milliseconds(limit.remainingTime());
  std::unique_lock lock(sentMutex_);
  const bool isSent = sent_.wait_for(lock, rest, [this] { return isSent_; });
  lock.unlock();
  if (!isSent) QMetaObject::invokeMethod(this, &Connection::Cut, Qt::BlockingQueuedConnection);
}

}  // namespace verlume::qt
