// The control words the RTF reader knows, each with what it does.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "richtext/characters.h"
#include "richtext/rtf_limits.h"

namespace verlume::richtext {

enum class Action : std::uint8_t {
  kUnknown,  // read over
  // Character formats. The toggles are on without a number and off with 0.
  kBold,
  kItalic,
  kUnderline,
  kNoUnderline,
  kStrikethrough,
  kFont,
  kFontSize,
  kColor,
  kPlain,
  // What kind of script follows, and formats that only text of that kind takes.
  kEastAsianText,
  kOtherText,
  kAssociatedBold,
  kAssociatedItalic,
  kAssociatedFontSize,
  // Text. The value is the character that stands for the word.
  kCharacter,
  kBreak,
  kParagraphEnd,
  kUnicode,
  kFallbackCount,
  kBinary,
  // The document's code page and default font. The value is the code page the word names.
  kCodePageOf,
  kCodePage,
  kDefaultFont,
  // Inside the tables.
  kFontCharset,
  kFontCodePage,
  kRed,
  kGreen,
  kBlue,
  // Destinations.
  kFontTable,
  kColorTable,
  kUnshown,  // the rest of the group carries no shown text
};

struct ControlWord {
  std::string_view name;
  Action action = Action::kUnknown;
  std::uint16_t value = 0;
};

// A control word's name, its letters packed into two numbers so that comparing costs next to
// nothing. A name too long for them is empty: no known word has it.
struct ControlWordName {
  std::uint64_t head = 0;  // the first eight letters
  std::uint64_t tail = 0;

  // Reads the letters at `place` and moves it behind them.
  template <typename Ch>
  static constexpr ControlWordName Read(const Ch*& place, const Ch* end) {
    const std::uint64_t first = ReadHalf(place, end);
    const ControlWordName name{first, ReadHalf(place, end)};
    if (place == end || !IsAsciiLetter(*place)) return name;
    place = std::find_if_not(place, end, IsAsciiLetter<Ch>);
    return {};
  }

  constexpr bool operator==(const ControlWordName&) const = default;

 private:
  static constexpr std::ptrdiff_t kHalf = limits::kMaxControlWordLength / 2;
  static_assert(kHalf == sizeof head);

  template <typename Ch>
  static constexpr std::uint64_t ReadHalf(const Ch*& place, const Ch* end) {
    const Ch* at = place;
    const Ch* halfEnd = at + std::min(end - at, kHalf);
    std::uint64_t packed = 0;
    for (; at != halfEnd && IsAsciiLetter(*at); ++at) {
      packed = packed << 8 | static_cast<unsigned char>(*at);
    }
    place = at;
    return packed;
  }
};

// A control word's number, read digit by digit: begins with 0, takes each digit, and is held within
// its limit at the end.
template <typename Ch>
constexpr int WithDigit(int number, Ch digit) {
  if (number >= limits::kMaxParameter) return number;
  return number * 10 + static_cast<int>(CodeOf(digit) - '0');
}
constexpr int ControlNumber(int digits) {
  return std::min(digits, limits::kMaxParameter);
}

// The row of a control word; a row with Action::kUnknown for any other name.
const ControlWord& FindControlWord(const ControlWordName& name);

}  // namespace verlume::richtext
