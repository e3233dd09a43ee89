// A document as readable text, for tables of expected results.
#pragma once

#include <string>

#include "richtext/document.h"

namespace verlume::richtext {

// One line for each run: font/charset size colour styles|text. Sizes are in points; the colour is
// #rrggbb or auto; the styles are the letters of b(old), i(talic), u(nderline), s(trike-through) or
// "-". The text is UTF-8; line break, tab and backslash are \n, \t and \\, controls and lone
// surrogates \u and four hexadecimal digits. Font numbers do not show: equal dumps are equal
// documents.
std::string Dump(const Document& document);

// The text alone, in the same notation.
std::string DumpText(std::u16string_view text);

}  // namespace verlume::richtext
