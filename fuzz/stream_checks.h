// What stays true of the program, whatever a peer sends.
#pragma once

#include <string_view>

#include "fuzz/fuzzed_copy.h"

namespace verlume::fuzz {

// All that was put into the stream came out of it, but for ends of lines.
void CheckNothingLost(std::string_view stream, std::string_view delivered);

// No file was touched but the logs, an entry of a log is one line, and what the user was typing is
// still there.
void CheckHarmless(const FuzzedCopy& copy, std::u16string_view typed);

// The peer's nickname, put into a line by a placeholder, shows as it is. Types the rest of a line
// and sends it.
void CheckNicknameIsLiteral(FuzzedCopy& copy);

}  // namespace verlume::fuzz
