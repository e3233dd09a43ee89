#include "platform_qt/net/sender.h"

#include <utility>

#include "platform_qt/net/socket_options.h"

namespace verlume::qt {
namespace {

// The system has no event for an acknowledgement.
constexpr int kPollMilliseconds = 5;

}  // namespace

Sender::Sender(QTcpSocket* connection) : QObject(connection), connection_(connection) {
  clock_.start();
  poll_.setTimerType(Qt::PreciseTimer);
  poll_.setInterval(kPollMilliseconds);
  connect(&poll_, &QTimer::timeout, this, [this] { GoOn(); });
}

void Sender::Send(stream::OutgoingText text) {
  queue_.Add(std::move(text));
  GoOn();
}

void Sender::GoOn() {
  const bool wasDone = IsDone();
  const std::size_t waited = LinesWaiting();
  LookForAcknowledgement();
  while (const auto bytes = TextToSend()) {
    connection_->write(bytes->data(), static_cast<qint64>(bytes->size()));
    // At once, so that one text is one send.
    connection_->flush();
    // A near peer has acknowledged it already.
    LookForAcknowledgement();
  }
  if (IsDone()) {
    poll_.stop();
  } else if (!poll_.isActive()) {
    poll_.start();
  }
  const std::size_t acknowledged = waited - LinesWaiting();
  const bool isNews = acknowledged > 0 || (IsDone() && !wasDone);
  if (isNews && onAcknowledged) onAcknowledged(acknowledged);
}

void Sender::LookForAcknowledgement() {
  if (Unacknowledged(*connection_) == 0) queue_.Acknowledge(clock_.elapsed());
}

std::optional<std::string> Sender::TextToSend() {
  const bool canSend = connection_->state() == QAbstractSocket::ConnectedState;
  return canSend ? queue_.Take(clock_.elapsed()) : std::nullopt;
}

}  // namespace verlume::qt
