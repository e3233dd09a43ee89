// The base letters of all letters.
#pragma once

#include <array>

namespace verlume::qt {

// For every UTF-16 unit the letter without case and accents, 0 for an accent, or the unit itself.
// Computed once, on first use.
const std::array<char16_t, 0x10000>& BaseLetters();

}  // namespace verlume::qt
