// Colours for tests of what can be read.
#pragma once

#include "richtext/document.h"

namespace verlume::qt {

inline constexpr Color kBlack = 0;
inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kYellow = 0x00FFFF;
inline constexpr Color kNight = 0x202020;

}  // namespace verlume::qt
