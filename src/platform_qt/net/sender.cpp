#include "platform_qt/net/sender.h"

#include <chrono>
#include <utility>

#include "platform_qt/net/socket_options.h"

namespace verlume::qt {
namespace {

using std::chrono::steady_clock;

// The system signals no acknowledgement: it has to be polled.
constexpr std::chrono::milliseconds kPollInterval{5};

}  // namespace

Sender::Sender(QTcpSocket* connection) : QObject(connection), connection_(connection) {
  poll_.setTimerType(Qt::PreciseTimer);
  poll_.setInterval(kPollInterval);
  connect(&poll_, &QTimer::timeout, this, &Sender::Flush);
}

void Sender::Send(stream::OutgoingText text) {
  CheckThread();
  queue_.Add(std::move(text));
  // While others wait, asking the system once more for each would only take time.
  if (!poll_.isActive()) Flush();
}

void Sender::Flush() {
  CheckThread();
  const bool wasDone = IsDone();
  const std::size_t waited = LinesWaiting();
  CheckAcknowledgement();
  while (const auto bytes = TextToSend()) {
    connection_->write(bytes->data(), static_cast<qint64>(bytes->size()));
    // At once, so that one text is one send.
    connection_->flush();
    // A peer nearby has acknowledged it already.
    CheckAcknowledgement();
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

void Sender::CheckAcknowledgement() {
  CheckThread();
  if (Unacknowledged(*connection_) == 0) queue_.Acknowledge(steady_clock::now());
}

std::optional<std::string> Sender::TextToSend() {
  CheckThread();
  const bool canSend = connection_->state() == QAbstractSocket::ConnectedState;
  return canSend ? queue_.Take(steady_clock::now()) : std::nullopt;
}

}  // namespace verlume::qt
