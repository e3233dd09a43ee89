// Whether the user is asked before a peer is let in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "people/peer_book.h"

namespace verlume {

// What is not as it was. In private the peer has another key, in clear it has none.
enum class StopReason {
  None,
  OtherKeyAtAddress,  // where it was called, another key answered last
  OtherKeyForName,    // somebody verified or invited has this name, and another key
  ClearAtAddress,     // where it was called, somebody answered in private
  ClearForName,       // somebody with this name is known in private
};

struct PeerVerdict {
  StopReason stop = StopReason::None;
  std::u16string known;  // who it is that has the other key: a name, or the address called
};

// `name` is what the peer calls itself; `called` is where it was called ("host port"), "" if it
// called. A name that somebody with another key has is no stop where the user has let this key in
// with it, or knows both to be verified or invited.
PeerVerdict JudgePeer(const PeerBook& book, const std::optional<KeyFingerprint>& key,
                      std::u16string_view name, std::u16string_view called);

}  // namespace verlume
