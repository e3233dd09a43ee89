#include "platform_qt/net/clear_road.h"

#include <algorithm>
#include <utility>

#include "platform_qt/net/read_size.h"
#include "platform_qt/net/socket_options.h"
#include "richtext/code_pages.h"

namespace verlume::qt {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

ClearRoad::ClearRoad(QTcpSocket* socket, Sender* sender, Events events, milliseconds timeout,
                     std::string heard)
    : TcpRoad(socket, sender, std::move(events)), heard_(std::move(heard)), assembler_(timeout) {
  timeout_.setSingleShot(true);
  timeout_.setTimerType(Qt::PreciseTimer);
  connect(&timeout_, &QTimer::timeout, this, &ClearRoad::DeliverOverdue);
}

void ClearRoad::Start() {
  CheckThread();
  Listen();
  if (!heard_.empty()) {
    assembler_.Add(std::exchange(heard_, {}), steady_clock::now());
    Deliver();
  }
  // Signals for what came before, or for the end of the connection, found no receiver.
  Read();
  if (Socket().state() != QAbstractSocket::ConnectedState) OnDisconnected();
}

void ClearRoad::Read() {
  CheckThread();
  // A connection that was reset has nothing left to read, and is not open.
  while (Socket().isOpen() && Socket().bytesAvailable() > 0 && !Tell().isFull()) {
    const QByteArray bytes = Socket().read(kReadSize);
    AcknowledgeAtOnce(Socket());
    assembler_.Add(View(bytes), steady_clock::now());
    Deliver();
  }
}

void ClearRoad::ResumeReading() {
  CheckThread();
  assembler_.RestartTimeout(steady_clock::now());
  Read();
  DeliverOverdue();
}

// The timeout does not count while nothing is read.
void ClearRoad::DeliverOverdue() {
  CheckThread();
  if (!Tell().isFull()) Deliver();
}

void ClearRoad::Deliver() {
  CheckThread();
  while (const auto arrival = assembler_.Take(steady_clock::now())) Raise(*arrival);
  timeout_.stop();
  if (const auto deadline = assembler_.Deadline()) {
    const auto rest = std::chrono::ceil<milliseconds>(*deadline - steady_clock::now());
    timeout_.start(std::max(rest, milliseconds(0)));
  }
}

void ClearRoad::Raise(std::string_view arrival) {
  Tell().onArrival(richtext::DecodeGreek(arrival));
}

void ClearRoad::OnDisconnected() {
  CheckThread();
  timeout_.stop();
  if (Socket().isOpen()) assembler_.Add(View(Socket().readAll()), steady_clock::now());
  if (const auto rest = assembler_.Flush()) Raise(*rest);
  Tell().onEnded();
}

void ClearRoad::Close() {
  timeout_.stop();
  TcpRoad::Close();
}

}  // namespace verlume::qt
