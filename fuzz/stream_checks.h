// Checks what must hold of the program whatever a peer sends.
#pragma once

#include <string_view>

#include "fuzz/fuzzed_copy.h"

namespace verlume::fuzz {

// Everything that went into the stream came out of it, except line ends.
void CheckNothingLost(std::string_view stream, std::string_view delivered);

// Only logs were written, each log entry is one line, and what the user was typing is still there.
void CheckHarmless(const FuzzedCopy& copy, std::u16string_view typed);

// Types the rest of a line with a placeholder for the peer's nickname and sends it: the nickname
// must be shown unchanged.
void CheckNicknameIsLiteral(FuzzedCopy& copy);

}  // namespace verlume::fuzz
