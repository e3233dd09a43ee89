// The control words the RTF reader knows, each with what it does.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

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

// A control word's name while it is being read: the characters and their hash in one pass. Only the
// first limits::kMaxControlWordLength characters are held, `length` counts all of them.
struct ControlWordName {
  std::array<char, limits::kMaxControlWordLength> characters;
  std::size_t length = 0;
  std::uint32_t hash = 0;

  constexpr void Add(char character) {
    if (length < characters.size()) characters[length] = character;
    ++length;
    hash = (hash ^ static_cast<unsigned char>(character)) * 0x01000193u;
  }
};

// The row of a control word; a row with Action::kUnknown for any other name.
const ControlWord& FindControlWord(const ControlWordName& name);

}  // namespace verlume::richtext
