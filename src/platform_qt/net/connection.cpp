#include "platform_qt/net/connection.h"

#include <QTimer>
#include <utility>

#include "platform_qt/net/clear_road.h"
#include "platform_qt/net/end_watch.h"
#include "platform_qt/net/private_road.h"
#include "platform_qt/net/socket_options.h"
#include "platform_qt/os/tcp.h"
#include "richtext/code_pages.h"
#include "stream/tail.h"
#include "stream/utf8_text.h"

namespace verlume::qt {
namespace {

// From Close to the end of the connection.
constexpr std::chrono::seconds kClosingLimit = Connection::kSendingLimit + std::chrono::seconds(1);

}  // namespace

Connection::Connection(QTcpSocket* socket, QThread& network, std::chrono::milliseconds timeout,
                       Events events, PrivacyTerms terms, ConnectionNumber number)
    : timeout_(timeout),
      events_(std::move(events)),
      terms_(std::move(terms)),
      number_(number),
      isOpen_(socket->state() == QAbstractSocket::ConnectedState),
      isAdmitted_(terms_.offer == PrivacyOffer::Never),
      socket_(socket),
      letsIn_(isAdmitted_) {
  socket_->disconnect();
  socket_->setParent(this);
  moveToThread(&network);
  QMetaObject::invokeMethod(this, &Connection::Start, Qt::QueuedConnection);
}

Connection::~Connection() {
  // The socket's signals must not reach members that are already destroyed.
  if (socket_) socket_->disconnect();
}

void Connection::Start() {
  CheckThread();
  sender_ = new Sender(socket_);
  // The system tells what the peer's machine has acknowledged only until the connection ends.
  connect(socket_, &QTcpSocket::stateChanged, sender_, &Sender::Flush);
  SetConnectionOptions(*socket_);
  new EndWatch(socket_);
  if (terms_.offer == PrivacyOffer::Never) {
    Enter(Privacy::Clear);
    return TakeRoad(
        std::make_unique<ClearRoad>(socket_, sender_, RoadEvents(), timeout_, std::string()));
  }
  TakeRoad(std::make_unique<SettlingRoad>(
      socket_, sender_, RoadEvents(), terms_,
      SettlingRoad::Settled{
          .onClear = [this](std::string heard,
                            std::string_view name) { GoClear(std::move(heard), name); },
          .onPrivate = [this](Greetings greetings) { GoPrivate(std::move(greetings)); },
          .onFailed = [this](PrivacyFailure failure) { Fail(failure); }}));
}

Road::Events Connection::RoadEvents() {
  return {.onArrival = [this](std::u16string arrival) { Enqueue(std::move(arrival)); },
          .isFull = [this] { return arrivals_.IsFull(); },
          .onAcknowledged = [this](std::size_t lines) { OnAcknowledged(lines); },
          .onSendingEnded = [this] { WakeFinishSending(); },
          .onEnded = [this] { OnEnded(); }};
}

// The road before may be at work, and is destroyed later.
void Connection::TakeRoad(std::unique_ptr<Road> road) {
  if (road_) road_.release()->deleteLater();
  road_ = std::move(road);
  road_->Start();
}

void Connection::GoClear(std::string heard, std::string_view nickname) {
  CheckThread();
  Enter(Privacy::Clear);
  Know({.peer = {.key = std::nullopt, .name = richtext::DecodeGreek(nickname)}, .key = ""});
  TakeRoad(std::make_unique<ClearRoad>(socket_, sender_, RoadEvents(), timeout_, std::move(heard)));
}

// TLS gets the connection under a socket that has never seen a byte in clear.
void Connection::GoPrivate(Greetings greetings) {
  CheckThread();
  const SocketNumber socket = DuplicateSocket(socket_->socketDescriptor());
  if (socket == kNoSocket) return Fail(PrivacyFailure::Broken);
  socket_->disconnect();
  socket_->abort();
  socket_->deleteLater();
  socket_ = nullptr;
  Enter(Privacy::Becoming);
  TakeRoad(std::make_unique<PrivateRoad>(
      socket, terms_, std::move(greetings), RoadEvents(),
      PrivateRoad::Proved{.onKnown =
                              [this](const PublicKey& key, std::string_view name) {
                                Enter(Privacy::Private);
                                Know({.peer = {.key = FingerprintOf(key),
                                               .name = stream::DecodeUtf8(name)},
                                      .key = key});
                              },
                          .onGoodbye = [this] { hasPeerSaidGoodbye_ = true; },
                          .onFailed = [this](PrivacyFailure failure) { Fail(failure); }}));
}

void Connection::Enter(Privacy privacy) {
  isPrivate_ = privacy == Privacy::Private;
  if (events_.onPrivacy) events_.onPrivacy(privacy);
}

void Connection::Know(KnownPeer peer) {
  {
    const std::lock_guard lock(peerMutex_);
    peer_ = std::move(peer);
  }
  if (events_.onPeerKnown) events_.onPeerKnown();
}

std::optional<Connection::KnownPeer> Connection::WhoIsThere() const {
  const std::lock_guard lock(peerMutex_);
  return peer_;
}

void Connection::Fail(PrivacyFailure failure) {
  CheckThread();
  if (!isClosing_) failure_ = failure;
  road_->Abort();
  OnEnded();
}

void Connection::Admit() {
  if (isAdmitted_.exchange(true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        letsIn_ = true;
        road_->Admit();
        if (isClosing_) return;
        for (Said& said : std::exchange(waiting_, {})) road_->Send(std::move(said));
      },
      Qt::QueuedConnection);
}

void Connection::Send(std::u16string_view text, TextKind kind) {
  if (kind == TextKind::Line) ++linesWaiting_;
  QMetaObject::invokeMethod(
      this,
      [this, said = Said{std::u16string(text), kind}]() mutable { SendOrWait(std::move(said)); },
      Qt::QueuedConnection);
}

// Before the peer is let in, only the side that was called says that the conversation starts.
void Connection::SendOrWait(Said said) {
  CheckThread();
  const auto isStart = [&said] {
    return stream::IsGreeting(richtext::EncodeGreek(said.text), stream::Greeting::Start);
  };
  if (letsIn_) return road_->Send(std::move(said));
  if (terms_.IsCaller() || hasStarted_ || !isStart()) return waiting_.push_back(std::move(said));
  hasStarted_ = true;
  road_->Send(std::move(said));
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
  ++takenIn_;
  if (isPrivate_ && !isTakenInTold_.exchange(true)) {
    QMetaObject::invokeMethod(this, &Connection::TellTakenIn, Qt::QueuedConnection);
  }
  return std::move(taken->arrival);
}

void Connection::TellTakenIn() {
  CheckThread();
  isTakenInTold_ = false;
  road_->TakenIn(takenIn_);
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
