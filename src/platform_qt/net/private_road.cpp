#include "platform_qt/net/private_road.h"

#include <QCryptographicHash>
#include <algorithm>
#include <utility>

#include "platform_qt/net/end_watch.h"
#include "platform_qt/net/read_size.h"
#include "platform_qt/net/socket_options.h"
#include "platform_qt/net/tls_settings.h"
#include "stream/utf8_text.h"

namespace verlume::qt {
namespace {

using stream::Frame;
using stream::FrameKind;
using stream::Role;

// How many bytes are handed on to TLS at a time: what waits beyond can still be dropped.
constexpr qint64 kMostHandedOn = 256 << 10;
// The system does not signal that the peer's machine has everything: it has to be asked.
constexpr std::chrono::milliseconds kDrainInterval{5};
constexpr int kPulsesOfAlive = 10;

stream::Transcript TranscriptOf(const Greetings& greetings) {
  const std::string said = greetings.start + greetings.confirm;
  const QByteArray hash = QCryptographicHash::hash(
      QByteArrayView(said.data(), static_cast<qsizetype>(said.size())), QCryptographicHash::Sha256);
  stream::Transcript transcript{};
  std::copy_n(hash.begin(), transcript.size(), transcript.begin());
  return transcript;
}

}  // namespace

PrivateRoad::PrivateRoad(SocketNumber socket, const PrivacyTerms& terms, Greetings greetings,
                         Events events, Proved proved)
    : Road(std::move(events)),
      socket_(socket),
      terms_(terms),
      proved_(std::move(proved)),
      greetings_(std::move(greetings)),
      transcript_(TranscriptOf(greetings_)) {
  for (QTimer* limit : {&proofLimit_, &leavingLimit_}) limit->setSingleShot(true);
  connect(&proofLimit_, &QTimer::timeout, this, [this] { Break(PrivacyFailure::Late); });
  connect(&leavingLimit_, &QTimer::timeout, this, &PrivateRoad::End);
  connect(&drain_, &QTimer::timeout, this, &PrivateRoad::ShutDownSending);
  connect(&pulse_, &QTimer::timeout, this, &PrivateRoad::Pulse);
  // Queued: TLS is in the middle of its work, and must not be ended there.
  connect(&tls_, &QSslSocket::errorOccurred, this, &PrivateRoad::OnDisconnected,
          Qt::QueuedConnection);
  connect(&tls_, &QSslSocket::disconnected, this, &PrivateRoad::OnDisconnected,
          Qt::QueuedConnection);
  connect(&tls_, &QSslSocket::encrypted, this, &PrivateRoad::OnEncrypted, Qt::QueuedConnection);
  // Certificates are only envelopes. A peer without one fails elsewhere.
  connect(&tls_, &QSslSocket::sslErrors, this, [this] { tls_.ignoreSslErrors(); });
  connect(&tls_, &QSslSocket::encryptedBytesWritten, this, &PrivateRoad::Write);
}

void PrivateRoad::Start() {
  CheckThread();
  proofLimit_.start(terms_.limits.proof);
  if (!tls_.setSocketDescriptor(socket_)) {
    CloseSocket(socket_);
    return Break(PrivacyFailure::Broken);
  }
  new EndWatch(&tls_);
  tls_.setReadBufferSize(kReadSize);
  tls_.setSslConfiguration(TlsSettings(*terms_.ownKey));
  // The side that was called is the client: so nothing of TLS can be joined with a greeting.
  if (terms_.IsCaller()) {
    tls_.startServerEncryption();
  } else {
    tls_.startClientEncryption();
  }
}

void PrivateRoad::OnEncrypted() {
  CheckThread();
  if (at_ != At::Proving) return;
  const auto key = KeyOfPeer(tls_);
  const bool isNew = key && *key != terms_.ownKey->shown;
  const bool isPrivate = tls_.sessionProtocol() == QSsl::TlsV1_3;
  if (!isNew || !isPrivate) return Break(PrivacyFailure::Broken);
  if (terms_.expected && FingerprintOf(*key) != *terms_.expected) {
    return Break(PrivacyFailure::OtherKey);
  }
  peerKey_ = *key;
  at_ = At::Greeting;
  sent_.start();
  heard_.start();
  pulse_.start(terms_.limits.alive / kPulsesOfAlive);
  connect(&tls_, &QSslSocket::readyRead, this, &PrivateRoad::Read, Qt::QueuedConnection);
  const std::string hello = stream::WriteHello(
      {.role = terms_.role, .transcript = transcript_, .nickname = terms_.ownName});
  tls_.write(hello.data(), static_cast<qint64>(hello.size()));
  tls_.flush();
  Read();
}

void PrivateRoad::Read() {
  CheckThread();
  while (at_ != At::Ended && tls_.bytesAvailable() > 0 && !IsFull()) {
    const QByteArray bytes = tls_.read(kReadSize);
    AcknowledgeAtOnce(tls_);
    heard_.start();
    TakeBytes(bytes);
  }
  Write();
}

void PrivateRoad::TakeBytes(const QByteArray& bytes) {
  std::string_view rest = View(bytes);
  while (at_ != At::Ended) {
    const auto frame = reader_.Read(rest);
    if (!frame) break;
    Take(*frame);
  }
  if (reader_.IsBroken()) Break(PrivacyFailure::Broken);
}

bool PrivateRoad::IsFull() const {
  return !isClosing_ && (Tell().isFull() || count_.IsFull());
}

void PrivateRoad::Take(const Frame& frame) {
  switch (frame.kind) {
    case FrameKind::Hello:
      return TakeHello(frame);
    case FrameKind::Text:
    case FrameKind::TextPart:
      return TakeText(frame);
    case FrameKind::Acknowledgement:
      return TakeAcknowledgement(frame);
    case FrameKind::Alive:
      return;
    case FrameKind::Goodbye:
      return TakeGoodbye();
  }
}

void PrivateRoad::TakeHello(const Frame& frame) {
  const auto hello = stream::ReadHello(frame.body);
  const Role wanted = terms_.IsCaller() ? Role::Callee : Role::Caller;
  if (!hello || hello->role != wanted || hello->transcript != transcript_) {
    return Break(PrivacyFailure::Broken);
  }
  at_ = At::Talking;
  proofLimit_.stop();
  if (!terms_.IsCaller()) Send(greetings_.ownStart);
  proved_.onKnown(peerKey_, hello->nickname);
}

void PrivateRoad::TakeText(const Frame& frame) {
  const bool isEnd = frame.kind == FrameKind::Text;
  // The user has closed the conversation: what comes now is shown to nobody.
  if (isClosing_) return;
  joiner_.Add(frame.body, isEnd);
  while (auto text = joiner_.Take()) {
    if (text->empty()) continue;
    count_.AddArrival();
    Tell().onArrival(std::move(*text));
  }
  if (isEnd) count_.EndText();
}

void PrivateRoad::TakeAcknowledgement(const Frame& frame) {
  const std::size_t waited = queue_.LinesWaiting();
  if (!queue_.Acknowledge(stream::ReadAcknowledgement(frame.body))) {
    return Break(PrivacyFailure::Broken);
  }
  if (const std::size_t lines = waited - queue_.LinesWaiting(); lines > 0) {
    Tell().onAcknowledged(lines);
  }
  TellSendingEnded();
}

// All that has come counts as taken in, so that nothing that will be shown is told as lost.
void PrivateRoad::TakeGoodbye() {
  hasPeerLeft_ = true;
  proved_.onGoodbye();
  if (isAdmitted_ && !isClosing_) count_.TakeInAll();
  if (isShut_) return End();
  if (!isClosing_) StartLeaving();
}

void PrivateRoad::Send(Said said) {
  CheckThread();
  queue_.Add(stream::EncodeUtf8(said.text), said.kind);
  Write();
}

void PrivateRoad::Write() {
  CheckThread();
  const bool maySpeak = at_ == At::Talking || at_ == At::Leaving;
  if (!maySpeak || hasSaidGoodbye_) return;
  bool hasWritten = false;
  while (tls_.bytesToWrite() + tls_.encryptedBytesToWrite() < kMostHandedOn) {
    const auto frame = NextFrame();
    if (!frame) break;
    tls_.write(frame->data(), static_cast<qint64>(frame->size()));
    hasWritten = true;
  }
  if (!hasWritten) return;
  sent_.start();
  tls_.flush();
}

std::optional<std::string> PrivateRoad::NextFrame() {
  if (hasSaidGoodbye_) return std::nullopt;
  if (isAdmitted_ && acknowledged_ != count_.TextsTakenIn()) {
    acknowledged_ = count_.TextsTakenIn();
    return stream::WriteAcknowledgement(acknowledged_);
  }
  // A peer that has left takes nothing in any more.
  if (!hasPeerLeft_) {
    if (auto frame = queue_.TakeFrame()) return frame;
  }
  if (at_ != At::Leaving) return std::nullopt;
  hasSaidGoodbye_ = true;
  drain_.start(kDrainInterval);
  return stream::WriteFrame(FrameKind::Goodbye, "");
}

void PrivateRoad::StartLeaving() {
  at_ = At::Leaving;
  if (!isClosing_) leavingLimit_.start(terms_.limits.goodbye);
  Write();
}

qint64 PrivateRoad::BytesOnTheirWay() const {
  return tls_.encryptedBytesToWrite() + Unacknowledged(tls_);
}

void PrivateRoad::ShutDownSending() {
  CheckThread();
  if (at_ == At::Ended || isShut_ || BytesOnTheirWay() > 0) return;
  drain_.stop();
  isShut_ = true;
  EndSending(tls_.socketDescriptor());
  TellSendingEnded();
  // Both have said goodbye: there is nothing to wait for.
  if (hasPeerLeft_) End();
}

// The lines are delivered when the peer's program has them, which it says later.
void PrivateRoad::TellSendingEnded() {
  if (isClosing_ && isShut_ && queue_.IsDone()) Tell().onSendingEnded();
}

void PrivateRoad::ResumeReading() {
  CheckThread();
  heard_.start();
  Read();
}

void PrivateRoad::TakenIn(std::uint64_t arrivals) {
  CheckThread();
  const bool wasFull = IsFull();
  count_.TakeIn(arrivals);
  if (wasFull && !IsFull()) return ResumeReading();
  Write();
}

void PrivateRoad::Admit() {
  CheckThread();
  isAdmitted_ = true;
  Write();
}

// Says that this side is still there, and notices when the other no longer is.
void PrivateRoad::Pulse() {
  CheckThread();
  if (!IsFull() && heard_.hasExpired(terms_.limits.silence.count())) {
    return Break(PrivacyFailure::Broken);
  }
  if (IsFull()) heard_.start();
  const bool maySpeak = at_ == At::Talking && tls_.bytesToWrite() == 0;
  if (!maySpeak || !sent_.hasExpired(terms_.limits.alive.count())) return;
  const std::string alive = stream::WriteFrame(FrameKind::Alive, "");
  tls_.write(alive.data(), static_cast<qint64>(alive.size()));
  tls_.flush();
  sent_.start();
}

void PrivateRoad::Close() {
  CheckThread();
  const bool isKnown = at_ == At::Talking || at_ == At::Leaving;
  isClosing_ = true;
  if (at_ == At::Ended) return Tell().onEnded();
  if (!isKnown) return End();
  StartLeaving();
  Read();
}

// The peer has ended its half, or the connection broke, or TLS failed.
void PrivateRoad::OnDisconnected() {
  CheckThread();
  if (at_ == At::Ended) return;
  if (at_ == At::Proving) return Break(PrivacyFailure::Broken);
  // Whatever waits already: nothing more can come, and what has come is bounded.
  if (tls_.isOpen()) TakeBytes(tls_.readAll());
  if (at_ == At::Greeting) return Break(PrivacyFailure::Broken);
  End();
}

void PrivateRoad::Break(PrivacyFailure failure) {
  if (at_ == At::Ended) return;
  const bool isKnown = at_ == At::Talking || at_ == At::Leaving;
  Stop();
  if (isKnown || isClosing_) return Tell().onEnded();
  proved_.onFailed(failure);
}

void PrivateRoad::End() {
  if (at_ == At::Ended) return;
  Stop();
  Tell().onEnded();
}

void PrivateRoad::Stop() {
  at_ = At::Ended;
  for (QTimer* timer : {&proofLimit_, &leavingLimit_, &drain_, &pulse_}) timer->stop();
  tls_.disconnect(this);
  tls_.abort();
}

void PrivateRoad::Abort() {
  CheckThread();
  Stop();
}

}  // namespace verlume::qt
