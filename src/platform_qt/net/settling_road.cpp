#include "platform_qt/net/settling_road.h"

#include <utility>

#include "platform_qt/net/read_size.h"
#include "platform_qt/net/socket_options.h"
#include "richtext/code_pages.h"

namespace verlume::qt {

using stream::FirstWords;
using stream::Greeting;
using Tail = FirstWords::Tail;

SettlingRoad::SettlingRoad(QTcpSocket* socket, Sender* sender, Events events,
                           const PrivacyTerms& terms, Settled settled)
    : TcpRoad(socket, sender, std::move(events)), terms_(terms), settled_(std::move(settled)) {
  tailLimit_.setSingleShot(true);
  connect(&tailLimit_, &QTimer::timeout, this, &SettlingRoad::GoClear);
}

void SettlingRoad::Start() {
  CheckThread();
  Listen();
  Read();
  if (!isSettled_ && Socket().state() != QAbstractSocket::ConnectedState) OnDisconnected();
}

void SettlingRoad::Send(Said said) {
  CheckThread();
  std::string bytes = richtext::EncodeGreek(said.text);
  if (terms_.CanBePrivate()) {
    bytes += stream::PrivacyTail();
    greetings_.start = bytes;
    greetings_.ownStart = said;
  }
  Sending().Send({std::move(bytes), said.kind});
}

void SettlingRoad::Read() {
  CheckThread();
  while (!isSettled_ && Socket().isOpen() && Socket().bytesAvailable() > 0) {
    const QByteArray bytes = Socket().read(kReadSize);
    AcknowledgeAtOnce(Socket());
    heard_ += View(bytes);
    Decide();
  }
}

// The caller waits for the start of the conversation, the other side for its confirmation. A peer
// that speaks before it can have heard the tail does not know of it.
void SettlingRoad::Decide() {
  const bool isExpected = terms_.IsCaller() || !greetings_.start.empty();
  if (!terms_.CanBePrivate() || !isExpected) return GoClear();
  const FirstWords first =
      ReadFirstWords(heard_, terms_.IsCaller() ? Greeting::Start : Greeting::Confirm);
  if (first.tail == Tail::None) return GoClear();
  if (first.tail == Tail::Private) return GoPrivate();
  if (!tailLimit_.isActive()) tailLimit_.start(terms_.limits.tail);
}

void SettlingRoad::GoClear() {
  isSettled_ = true;
  tailLimit_.stop();
  if (terms_.MustBePrivate()) return settled_.onFailed(PrivacyFailure::NotOffered);
  Socket().disconnect(this);
  const Greeting greeting = terms_.IsCaller() ? Greeting::Start : Greeting::Confirm;
  const std::string nickname(ReadFirstWords(heard_, greeting).nickname);
  settled_.onClear(std::move(heard_), nickname);
}

void SettlingRoad::GoPrivate() {
  isSettled_ = true;
  tailLimit_.stop();
  if (terms_.IsCaller()) {
    greetings_.start = heard_;
    greetings_.confirm = stream::WriteGreeting(Greeting::Confirm, "", true);
  } else {
    greetings_.confirm = heard_;
  }
  const Greeting greeting = terms_.IsCaller() ? Greeting::Start : Greeting::Confirm;
  const bool isGlued = ReadFirstWords(heard_, greeting).length != heard_.size();
  if (isGlued || !IsEmpty()) return settled_.onFailed(PrivacyFailure::Broken);
  if (terms_.IsCaller()) {
    const std::string& confirm = greetings_.confirm;
    Socket().write(confirm.data(), static_cast<qint64>(confirm.size()));
    Socket().flush();
    if (!IsEmpty()) return settled_.onFailed(PrivacyFailure::Broken);
  }
  Socket().disconnect(this);
  settled_.onPrivate(std::move(greetings_));
}

bool SettlingRoad::IsEmpty() const {
  return Socket().bytesAvailable() == 0 && Socket().bytesToWrite() == 0;
}

void SettlingRoad::OnDisconnected() {
  CheckThread();
  if (isSettled_) return;
  isSettled_ = true;
  tailLimit_.stop();
  if (Socket().isOpen()) heard_ += View(Socket().readAll());
  const Greeting greeting = terms_.IsCaller() ? Greeting::Start : Greeting::Confirm;
  const bool hasTail =
      terms_.CanBePrivate() && ReadFirstWords(heard_, greeting).tail == FirstWords::Tail::Private;
  if (heard_.empty()) return Tell().onEnded();
  if (hasTail) return settled_.onFailed(PrivacyFailure::Broken);
  GoClear();
}

void SettlingRoad::Close() {
  tailLimit_.stop();
  isSettled_ = true;
  TcpRoad::Close();
}

}  // namespace verlume::qt
