// Port numbers as the user types them.
#pragma once

#include <cstdint>
#include <string_view>

namespace verlume {

// What the user may type: any whole number that is not negative. How much of it is a port shows
// when it is used (PortNumberOf).
inline constexpr std::int32_t kLeastPort = 0;
inline constexpr std::int32_t kGreatestPort = 2147483647;

// True when the text, without the blanks around it, is a whole number from min to max: digits with
// at most one sign before them, and nothing else (no point, no blank, no exponent, no separators).
// Throws RunTimeFailure 6 when the number does not fit into 32 bits.
bool IsPortNumber(std::u16string_view text, std::int32_t min, std::int32_t max);

// The number in a text for which IsPortNumber holds. Throws RunTimeFailure 6 when it does not fit
// into 16 bits, which ends at 32767.
std::int16_t PortNumberOf(std::u16string_view text);

}  // namespace verlume
