// The style of a text that the user types, and its conversions to what text boxes and the font
// dialog use.
#pragma once

#include <string>

#include "richtext/document.h"

namespace verlume {

struct FontChoice;
struct SelectionFormat;

struct TextStyle {
  std::u16string Name;  // of the font
  bool Bold = false;
  bool Italic = false;
  bool Strikethrough = false;
  bool Underline = false;
  verlume::Color Color = 0;
  double Size = 0;  // points

  bool operator==(const TextStyle&) const = default;
};

// Every member of the format has a value.
SelectionFormat FormatOf(const TextStyle& style);

// The style of the format. An undetermined font, size or colour is the one of `current`; an
// undetermined flag is off.
TextStyle StyleOf(const SelectionFormat& format, const TextStyle& current);

FontChoice FontChoiceOf(const TextStyle& style);
TextStyle StyleOf(const FontChoice& choice);

}  // namespace verlume
