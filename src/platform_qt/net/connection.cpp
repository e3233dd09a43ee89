#include "platform_qt/net/connection.h"

#include <QTimer>
#include <utility>

#include "platform_qt/net/clear_road.h"
#include "platform_qt/net/socket_options.h"

namespace verlume::qt {
namespace {

// From Close to the end of the connection.
constexpr std::chrono::seconds kClosingLimit = Connection::kSendingLimit + std::chrono::seconds(1);

}  // namespace

Connection::Connection(QTcpSocket* socket, QThread& network, std::chrono::milliseconds timeout,
                       Events events)
    : socket_(socket),
      timeout_(timeout),
      events_(std::move(events)),
      isOpen_(socket->state() == QAbstractSocket::ConnectedState) {
  socket_->disconnect();
  socket_->setParent(this);
  moveToThread(&network);
  QMetaObject::invokeMethod(this, &Connection::Start, Qt::QueuedConnection);
}

Connection::~Connection() {
  // The socket's signals must not reach members that are already destroyed.
  socket_->disconnect();
}

void Connection::Start() {
  CheckThread();
  auto* const sender = new Sender(socket_);
  // The system tells what the peer's machine has acknowledged only until the connection ends.
  connect(socket_, &QTcpSocket::stateChanged, sender, &Sender::Flush);
  SetConnectionOptions(*socket_);
  road_ = std::make_unique<ClearRoad>(socket_, sender, RoadEvents(), timeout_, std::string());
  road_->Start();
}

Road::Events Connection::RoadEvents() {
  return {.onArrival = [this](std::u16string arrival) { Enqueue(std::move(arrival)); },
          .isFull = [this] { return arrivals_.IsFull(); },
          .onAcknowledged = [this](std::size_t lines) { OnAcknowledged(lines); },
          .onSendingEnded = [this] { WakeFinishSending(); },
          .onEnded = [this] { OnEnded(); }};
}

void Connection::Send(std::u16string_view text, TextKind kind) {
  if (kind == TextKind::Line) ++linesWaiting_;
  QMetaObject::invokeMethod(
      this,
      [this, said = Said{std::u16string(text), kind}]() mutable { road_->Send(std::move(said)); },
      Qt::QueuedConnection);
}

void Connection::OnAcknowledged(std::size_t lines) {
  CheckThread();
  linesWaiting_ -= lines;
  if (lines > 0 && !isClosing_) events_.onAcknowledged();
}

std::optional<std::u16string> Connection::NextArrival() {
  auto taken = arrivals_.Take();
  if (!taken) return std::nullopt;
  if (taken->madeRoom) {
    QMetaObject::invokeMethod(
        this, [this] { road_->ResumeReading(); }, Qt::QueuedConnection);
  }
  return std::move(taken->arrival);
}

void Connection::Enqueue(std::u16string arrival) {
  CheckThread();
  if (arrivals_.Add(std::move(arrival))) events_.onArrival();
}

void Connection::OnEnded() {
  CheckThread();
  if (isClosing_) return Abort();
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
  isClosing_ = true;
  QTimer::singleShot(kSendingLimit, this, [this] {
    if (!hasSendingEnded_) Abort();
  });
  QTimer::singleShot(kClosingLimit, this, &Connection::Abort);
  road_->Close();
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
  road_->Abort();
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
