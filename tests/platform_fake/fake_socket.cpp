#include "platform_fake/fake_socket.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_failure.h"
#include "richtext/code_pages.h"

namespace verlume::fake {

void FakeNetwork::RunUntilIdle() {
  while (!events_.empty()) {
    const auto event = std::move(events_.front());
    events_.pop_front();
    event();
  }
}

void FakeNetwork::Mend() {
  isCut_ = false;
  for (FakeSocket* socket : sockets_) {
    if (!socket->privacy.IsHeld()) socket->DeliverWaiting();
  }
}

FakeSocket::~FakeSocket() {
  onUndelivered = nullptr;
  Close();
  if (pending_) pending_->peer_ = nullptr;
  network_.sockets_.erase(this);
}

// Queues an event of the connection that the socket holds now.
void FakeSocket::Post(std::function<void()> event) {
  network_.events_.push_back([this, generation = generation_, event = std::move(event)] {
    if (network_.sockets_.contains(this) && generation == generation_) event();
  });
}

void FakeSocket::Listen() {
  if (localPort_ == 0) localPort_ = network_.nextPort_++;
  if (network_.forbiddenPorts.contains(localPort_)) {
    throw RunTimeFailure(FailureNumber::PermissionDenied);
  }
  if (network_.listeners_.contains(localPort_)) throw RunTimeFailure(FailureNumber::AddressInUse);
  network_.listeners_[localPort_] = this;
  state_ = SocketState::Listening;
}

void FakeSocket::Connect() {
  state_ = SocketState::Connecting;
  callFailure_ = CallFailure::None;
  early_.clear();
  isCaller_ = true;
  localPort_ = network_.nextPort_++;
  privacy.Begin();
  Post([this] {
    if (privacy.LacksKey()) return privacy.Fail(PrivacyFailure::NoKey);
    if (network_.fails) return FailCall(*network_.fails);
    if (remoteHost.ends_with(u".invalid")) return FailCall(CallFailure::UnknownHost);
    const auto listener = network_.listeners_.find(remotePort_);
    if (listener == network_.listeners_.end()) return FailCall(CallFailure::Refused);
    state_ = SocketState::Connected;
    ++connection_;
    peer_ = listener->second;
    remoteHostIP_ = peer_->localIP;
    privacy.Connected();
    peer_->callers_.push_back(this);
    peer_->AskNextCaller();
    if (onConnect) onConnect();
  });
}

void FakeSocket::FailCall(CallFailure failure) {
  callFailure_ = failure;
  LosePeer();
}

void FakeSocket::AskNextCaller() {
  if (request_ != 0 || callers_.empty()) return;
  pending_ = callers_.front();
  callers_.pop_front();
  request_ = network_.nextRequest_++;
  Post([this, caller = pending_, request = request_] {
    remoteHostIP_ = caller->localIP;
    remotePort_ = caller->localPort_;
    if (onConnectionRequest) onConnectionRequest(request);
  });
}

void FakeSocket::Accept(std::int64_t requestId) {
  FakeSocket* caller = requestId == request_ ? std::exchange(pending_, nullptr) : nullptr;
  request_ = 0;
  if (!caller) return Post([this] { LosePeer(); });
  peer_ = caller;
  remoteHostIP_ = caller->localIP;
  remotePort_ = caller->localPort_;
  caller->peer_ = this;
  state_ = SocketState::Connected;
  ++connection_;
  isCaller_ = false;
  hasSent_ = false;
  privacy.Begin();
  Post([this] { privacy.Connected(); });
  for (const std::u16string& text : std::exchange(caller->early_, {})) Arrive({text});
}

void FakeSocket::Reject(std::int64_t requestId) {
  if (state_ != SocketState::Listening || request_ == 0 || requestId != request_) return;
  DropCaller();
  remoteHostIP_.clear();
  AskNextCaller();
}

void FakeSocket::DropCaller() {
  request_ = 0;
  FakeSocket* caller = std::exchange(pending_, nullptr);
  if (!caller) return;
  caller->peer_ = nullptr;
  caller->Post([caller] { caller->LosePeer(); });
}

// As on a real machine, closing a listener refuses the callers that wait after the current one. The
// current one is kept for an Accept right afterwards, and dropped otherwise.
void FakeSocket::Close() {
  if (state_ == SocketState::Listening) {
    network_.listeners_.erase(localPort_);
    for (FakeSocket* caller : std::exchange(callers_, {})) {
      caller->peer_ = nullptr;
      caller->Post([caller] { caller->LosePeer(); });
    }
  }
  if (FakeSocket* peer = std::exchange(peer_, nullptr)) {
    // What is on its way is still taken in.
    if (!peer->arePaused_ && !peer->privacy.IsHeld()) untaken_.clear();
    std::erase(peer->callers_, this);
    if (peer->pending_ == this) peer->pending_ = nullptr;
    if (peer->peer_ == this) {
      peer->peer_ = nullptr;
      peer->isGoodbye_ = privacy.State() == Privacy::Private;
      peer->Post([peer] { peer->LosePeer(); });
    }
  }
  LoseWaiting();
  privacy.End();
  if (!undelivered_.empty()) {
    network_.events_.push_back([this] {
      if (network_.sockets_.contains(this)) RaiseUndelivered();
    });
  }
  state_ = SocketState::Closed;
  remoteHostIP_.clear();
  arrivals_.clear();
  arrival_.clear();
  isCloseWaiting_ = false;
  isGoodbye_ = false;
  ++generation_;
  if (request_ != 0) Post([this] { DropCaller(); });
}

void FakeSocket::LosePeer() {
  // After a failed call no arrivals are waiting, so onClose need not wait for them.
  const bool wasConnected = state_ == SocketState::Connected || isCloseWaiting_;
  state_ = SocketState::Closed;
  peer_ = nullptr;
  LoseWaiting();
  privacy.End();
  isCloseWaiting_ = wasConnected && arePaused_;
  if (isCloseWaiting_) return;
  privacy.hasPeerSaidGoodbye_ = std::exchange(isGoodbye_, false);
  RaiseUndelivered();
  if (onClose) onClose();
}

bool FakeSocket::SendData(std::u16string_view text, TextKind kind) {
  if (state_ != SocketState::Connected) return false;
  sent.emplace_back(text);
  const bool isFirst = !std::exchange(hasSent_, true) && !isCaller_;
  const bool isHeld = privacy.IsHeld() && !isFirst;
  const Text next{sent.back(), kind};
  if (network_.isCut_ || isHeld) {
    waiting_.push_back(next);
  } else {
    Deliver(next);
  }
  return true;
}

void FakeSocket::Deliver(const Text& next) {
  const std::u16string& text = next.text;
  // In private no character is lost.
  const bool isWhole = peer_ && privacy.CanBePrivate() && peer_->privacy.CanBePrivate();
  const std::u16string received =
      isWhole ? text : richtext::DecodeGreek(richtext::EncodeGreek(text));
  if (peer_ && peer_->peer_ == this) {
    const bool isCounted = privacy.State() == Privacy::Private;
    if (isCounted) untaken_.push_back(next.kind);
    peer_->Arrive({received, isCounted});
  } else {
    early_.push_back(received);
  }
}

std::size_t FakeSocket::LinesWaiting() const {
  const auto lines = std::count_if(waiting_.begin(), waiting_.end(),
                                   [](const Text& text) { return text.kind == TextKind::Line; });
  const auto untaken = std::count(untaken_.begin(), untaken_.end(), TextKind::Line);
  return static_cast<std::size_t>(lines + untaken);
}

void FakeSocket::DeliverWaiting() {
  for (const Text& text : std::exchange(waiting_, {})) {
    Deliver(text);
    if (text.kind != TextKind::Line || privacy.State() == Privacy::Private) continue;
    Post([this] {
      if (onAcknowledged) onAcknowledged();
    });
  }
}

void FakeSocket::LoseWaiting() {
  if (const std::size_t lines = LinesWaiting(); lines > 0) undelivered_[connection_] += lines;
  waiting_.clear();
  untaken_.clear();
}

// In private the peer's program has taken in the next text.
void FakeSocket::NoteTaken() {
  if (untaken_.empty()) return;
  const TextKind kind = untaken_.front();
  untaken_.pop_front();
  if (kind == TextKind::Line && onAcknowledged) onAcknowledged();
}

void FakeSocket::RaiseUndelivered() {
  for (const auto& [connection, lines] : std::exchange(undelivered_, {})) {
    if (onUndelivered) onUndelivered(lines, connection);
  }
}

void FakeSocket::FinishSending() {
  RaiseUndelivered();
}

void FakeSocket::Arrive(Arrival arrival) {
  arrivals_.push_back(std::move(arrival));
  Post([this] { DeliverArrival(); });
}

void FakeSocket::Receive(std::u16string text) {
  if (state_ != SocketState::Connected) return;
  arrivals_.push_back({std::move(text)});
  DeliverArrival();
}

void FakeSocket::DeliverArrival() {
  if (arrivals_.empty()) return;
  privacy.SettleByArrival(arrivals_.front().text);
  if (arePaused_ || privacy.IsHeld() || arrivals_.empty()) return;
  arrival_.clear();
  do {
    arrival_ += arrivals_.front().text;
    if (arrivals_.front().isCounted && peer_) peer_->Post([peer = peer_] { peer->NoteTaken(); });
    arrivals_.pop_front();
  } while (network_.joinArrivals && !arrivals_.empty());
  if (onDataArrival) onDataArrival(static_cast<std::int32_t>(arrival_.size()));
}

// The peer has been let in.
void FakeSocket::Open() {
  if (!network_.isCut_) DeliverWaiting();
  for (std::size_t i = 0; i < arrivals_.size(); ++i) Post([this] { DeliverArrival(); });
}

void FakeSocket::DropConnection() {
  if (FakeSocket* peer = std::exchange(peer_, nullptr); peer && peer->peer_ == this) {
    peer->peer_ = nullptr;
    peer->Post([peer] { peer->LosePeer(); });
  }
  arrivals_.clear();
  LosePeer();
}

void FakeSocket::ResumeArrivals() {
  if (!std::exchange(arePaused_, false)) return;
  for (std::size_t i = 0; i < arrivals_.size(); ++i) Post([this] { DeliverArrival(); });
  if (isCloseWaiting_) Post([this] { LosePeer(); });
}

std::u16string FakeSocket::GetData() {
  return std::exchange(arrival_, {});
}

}  // namespace verlume::fake
