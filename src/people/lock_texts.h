// What the lock says: how private the conversation is, and who the peer is.
#pragma once

#include <string>

#include "people/day.h"
#include "platform/lock_label.h"
#include "platform/privacy.h"

namespace verlume {

// How well the key is known.
enum class Acquaintance { First, Known, Invited, Verified };

// Why a conversation goes in clear.
enum class ClearReason { PeerCannot, NoOwnKey, TurnedOff };

struct LockState {
  Privacy privacy = Privacy::None;
  ClearReason clear = ClearReason::PeerCannot;
  Acquaintance acquaintance = Acquaintance::First;
  Day since;                    // of Known
  std::u16string name;          // of Verified: what the user calls the person; "" for nothing
  std::u16string callsSelf;     // what the peer calls itself
  bool isAnotherKnown = false;  // somebody else with this name
};

// A sentence without a full stop; "" without a connection.
std::u16string WordsOfLock(const LockState& state, bool isGreek);
LockPicture PictureOfLock(const LockState& state);

}  // namespace verlume
