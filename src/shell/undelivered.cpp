#include "shell/undelivered.h"

#include <algorithm>
#include <utility>

namespace verlume {
namespace {

std::size_t BytesOf(std::u16string_view line) {
  return line.size() * sizeof(char16_t);
}

}  // namespace

bool IsSamePeer(const PeerTrace& said, const PeerTrace& now) {
  if (said.key) return said.key == now.key;
  if (said.nickname != now.nickname) return false;
  if (!said.called.empty() && !now.called.empty()) return said.called == now.called;
  return !said.address.empty() && said.address == now.address;
}

UndeliveredLines::Talk* UndeliveredLines::Find(ConnectionNumber connection) {
  const auto talk = std::ranges::find(talks_, connection, &Talk::connection);
  return talk == talks_.end() ? nullptr : &*talk;
}

// A connection that the user has closed may deliver its lines, and then nothing more is heard of
// it. When the next but one has begun, its time is over.
void UndeliveredLines::Meet(ConnectionNumber connection, PeerTrace peer) {
  for (Talk& talk : talks_) {
    if (!talk.isLost && talk.connection + 1 < connection) Forget(talk);
  }
  std::erase_if(talks_, [&](const Talk& talk) {
    return talk.lines.empty() && talk.connection != connection;
  });
  if (Talk* talk = Find(connection)) talk->peer = peer;
  current_ = {connection, std::move(peer)};
}

void UndeliveredLines::Add(ConnectionNumber connection, std::u16string_view line, bool isSent) {
  Talk* talk = Find(connection);
  if (!talk) {
    talk = &talks_.emplace_back();
    talk->connection = connection;
    if (current_.connection == connection) talk->peer = current_.peer;
  }
  talk->lines.emplace_back(line);
  if (!isSent) ++talk->unsent;
  ++lines_;
  bytes_ += BytesOf(line);
  LimitSize();
}

void UndeliveredLines::PopFront(Talk& talk) {
  --lines_;
  bytes_ -= BytesOf(talk.lines.front());
  talk.lines.pop_front();
}

void UndeliveredLines::Forget(Talk& talk) {
  while (!talk.lines.empty()) PopFront(talk);
  talk.gone = 0;
}

void UndeliveredLines::LimitSize() {
  while (lines_ > kMostLines || bytes_ > kMostBytes) {
    Talk& oldest =
        *std::ranges::find_if(talks_, [](const Talk& talk) { return !talk.lines.empty(); });
    PopFront(oldest);
    ++oldest.gone;
    oldest.unsent = std::min(oldest.unsent, oldest.lines.size());
  }
}

void UndeliveredLines::Keep(ConnectionNumber connection, std::size_t lines) {
  Talk* talk = Find(connection);
  if (!talk || talk->isLost) return;
  const std::size_t kept = lines + talk->unsent;
  while (talk->lines.size() > kept) PopFront(*talk);
  talk->gone = std::min(talk->gone, kept - talk->lines.size());
}

void UndeliveredLines::Lose(ConnectionNumber connection, std::size_t lines) {
  Talk* talk = Find(connection);
  if (!talk || talk->isLost) return;
  Keep(connection, lines);
  talk->isLost = true;
  if (!talk->peer) Forget(*talk);
}

bool UndeliveredLines::IsFor(const Talk& talk, const PeerTrace& peer) {
  return talk.isLost && talk.peer && IsSamePeer(*talk.peer, peer);
}

std::size_t UndeliveredLines::KeptFor(const PeerTrace& peer) const {
  std::size_t count = 0;
  for (const Talk& talk : talks_) {
    if (IsFor(talk, peer)) count += talk.lines.size();
  }
  return count;
}

std::size_t UndeliveredLines::CountFor(const PeerTrace& peer) const {
  std::size_t count = KeptFor(peer);
  for (const Talk& talk : talks_) {
    if (IsFor(talk, peer)) count += talk.gone;
  }
  return count;
}

const std::u16string* UndeliveredLines::FirstFor(const PeerTrace& peer) const {
  for (const Talk& talk : talks_) {
    if (IsFor(talk, peer) && !talk.lines.empty()) return &talk.lines.front();
  }
  return nullptr;
}

std::optional<std::u16string> UndeliveredLines::TakeFirstFor(const PeerTrace& peer) {
  for (Talk& talk : talks_) {
    if (!IsFor(talk, peer) || talk.lines.empty()) continue;
    std::u16string line = talk.lines.front();
    PopFront(talk);
    return line;
  }
  return std::nullopt;
}

void UndeliveredLines::DropFor(const PeerTrace& peer) {
  for (Talk& talk : talks_) {
    if (IsFor(talk, peer)) Forget(talk);
  }
}

}  // namespace verlume
