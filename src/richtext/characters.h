// What kind of character a UTF-16 unit or a byte is.
#pragma once

#include <string_view>
#include <type_traits>

namespace verlume::richtext {

// The number of a character or byte; a byte above 127 is no negative number.
template <typename Ch>
constexpr unsigned CodeOf(Ch character) {
  return static_cast<std::make_unsigned_t<Ch>>(character);
}

template <typename Ch>
constexpr bool IsAscii(Ch character) {
  return CodeOf(character) < 0x80;
}

template <typename Ch>
constexpr bool IsAsciiLetter(Ch character) {
  return (CodeOf(character) | 0x20u) - 'a' < 26u;
}

template <typename Ch>
constexpr bool IsAsciiDigit(Ch character) {
  return CodeOf(character) - '0' < 10u;
}

// What a hexadecimal digit stands for, or -1 where the character is none.
template <typename Ch>
constexpr int HexDigitValue(Ch character) {
  if (IsAsciiDigit(character)) return static_cast<int>(CodeOf(character) - '0');
  const unsigned letter = (CodeOf(character) | 0x20u) - 'a';
  return letter < 6 ? static_cast<int>(letter) + 10 : -1;
}

// The control characters of ASCII (C0 and DEL) and of Latin-1 (C1).
constexpr bool IsControlCharacter(char16_t unit) {
  return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

// Invisible characters that change the direction in which the text behind them, or around them, is
// written: marks, embeddings, overrides and isolates.
constexpr bool IsDirectionMark(char16_t unit) {
  return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E) ||
         (unit >= 0x2066 && unit <= 0x2069);
}

// A character outside the Basic Multilingual Plane is a high surrogate, then a low one.
constexpr bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}
constexpr bool IsSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit < 0xE000;
}
constexpr bool IsSurrogatePair(char16_t first, char16_t second) {
  return IsHighSurrogate(first) && IsLowSurrogate(second);
}
constexpr bool BeginsWithSurrogatePair(std::u16string_view text) {
  return text.size() > 1 && IsSurrogatePair(text[0], text[1]);
}

}  // namespace verlume::richtext
