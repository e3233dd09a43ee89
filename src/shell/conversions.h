// Conversions between texts and values, independent of the regional settings. Blanks around a text
// are ignored. A text that is not a value of the type throws RunTimeFailure 13, a number that does
// not fit the type RunTimeFailure 6.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace verlume {

// "True" and "False" in any letter case; a number is true unless it is 0.
bool BooleanOf(std::u16string_view text);

// A decimal number, such as "10.5", "-3" or "1e3".
double NumberOf(std::u16string_view text);

// A number rounded to a whole one, halves to the even neighbour.
std::int32_t IntegerOf(std::u16string_view text);

// The number at the start of the text, or 0 if there is none. Never throws.
double NumericPrefixOf(std::u16string_view text);

std::u16string BooleanText(bool value);  // "True", "False"

// The shortest text that reads back as the same number: "10.5", "9".
std::u16string NumberText(double value);

// Padded with zeros to the width: (7, 2) is "07".
std::u16string ZeroPaddedText(long long number, std::size_t width);

}  // namespace verlume
