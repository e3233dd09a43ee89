// How characters stand in RTF of code page 1253.
#pragma once

#include <string>
#include <string_view>

#include "richtext/document.h"

namespace verlume::richtext {

// Appends text as it is written in a font of this charset: outside ASCII, the characters of
// Windows-1253 as \'xx where the font is Greek, everything else as \uN?. `afterWord` says that a
// control word stands before it, which a blank has to delimit unless a backslash does.
void AppendEscaped(std::u16string& rtf, std::u16string_view text, int charset, bool afterWord);

// The name as it stands in the font table, without what cannot stand there: control characters, and
// the semicolon that ends a name.
void AppendFontName(std::u16string& rtf, const Font& font);

void AppendNumber(std::u16string& rtf, int number);

}  // namespace verlume::richtext
