#include "people/peer_verdict.h"

#include <algorithm>

#include "shell/nickname.h"

namespace verlume {
namespace {

bool IsTrusted(const KnownPeer& peer) {
  return peer.isVerified || peer.isInvited;
}

// Whether the user knows that this key has the name.
bool MayBeCalled(const KnownPeer& peer, std::u16string_view name) {
  const auto has = [name = ShowableNickname(name)](const std::vector<std::u16string>& names) {
    return std::ranges::find(names, name) != names.end();
  };
  const bool isGiven = peer.givenName == ShowableNickname(name);
  return has(peer.acceptedNames) || (IsTrusted(peer) && (isGiven || has(peer.names)));
}

PeerVerdict JudgeKey(const PeerBook& book, const KeyFingerprint& key, std::u16string_view name,
                     std::u16string_view called) {
  const KnownPeer* answered = book.AnsweredAt(called);
  if (answered && answered->key != key) return {StopReason::OtherKeyAtAddress, NameOf(*answered)};
  const KnownPeer* another = book.AnotherNamed(name, &key);
  if (!another || !IsTrusted(*another)) return {};
  const KnownPeer* peer = book.Find(key);
  if (peer && MayBeCalled(*peer, name)) return {};
  return {StopReason::OtherKeyForName, NameOf(*another)};
}

PeerVerdict JudgeClear(const PeerBook& book, std::u16string_view name, std::u16string_view called) {
  if (const KnownPeer* answered = book.AnsweredAt(called)) {
    return {StopReason::ClearAtAddress, NameOf(*answered)};
  }
  if (const KnownPeer* named = book.AnotherNamed(name, nullptr)) {
    return {StopReason::ClearForName, NameOf(*named)};
  }
  return {};
}

}  // namespace

PeerVerdict JudgePeer(const PeerBook& book, const std::optional<KeyFingerprint>& key,
                      std::u16string_view name, std::u16string_view called) {
  PeerVerdict verdict = key ? JudgeKey(book, *key, name, called) : JudgeClear(book, name, called);
  if (verdict.stop != StopReason::None && verdict.known.empty()) verdict.known = called;
  return verdict;
}

}  // namespace verlume
