// Port numbers as the user types them.
#pragma once

#include <cstdint>
#include <string_view>

namespace verlume {

// The numbers that the user may type. Larger ones than a port can be are refused only when they are
// used (PortNumberOf).
inline constexpr std::int32_t kLeastPort = 0;
inline constexpr std::int32_t kGreatestPort = 2147483647;

// True when the text is a whole number from min to max: digits with at most one sign before them,
// and nothing else (no decimal point, blanks within, exponent or separators). Blanks around it are
// ignored. Throws RunTimeFailure 6 when the number does not fit into 32 bits.
bool IsPortNumber(std::u16string_view text, std::int32_t min, std::int32_t max);

// The number in a text for which IsPortNumber is true. Throws RunTimeFailure 6 when it is larger
// than 32767, that is, does not fit into 16 bits.
std::int16_t PortNumberOf(std::u16string_view text);

}  // namespace verlume
