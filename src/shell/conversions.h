// The platform's conversions between text and values, whatever the regional settings. Blanks around
// a text are not part of it. A text that is no value of the type throws RunTimeFailure 13, a number
// that the type cannot hold RunTimeFailure 6.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace verlume {

// "True" and "False" in any letter case; a number is true unless it is 0.
bool BooleanOf(std::u16string_view text);

// A decimal number, as "10.5", "-3" or "1e3".
double NumberOf(std::u16string_view text);

// A number rounded to a whole one, halves to the even neighbour.
std::int32_t IntegerOf(std::u16string_view text);

// The number that the text starts with, 0 where it starts with none. Never throws.
double NumericPrefixOf(std::u16string_view text);

std::u16string BooleanText(bool value);  // "True", "False"

// As short as it reads back the same: "10.5", "9".
std::u16string NumberText(double value);

// With zeros in front up to the width: (7, 2) is "07".
std::u16string ZeroPaddedText(long long number, std::size_t width);

}  // namespace verlume
