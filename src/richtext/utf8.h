// UTF-8 as it is met in files and documents from elsewhere: strict, one character at a time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace verlume::richtext {

struct Utf8Character {
  char32_t codePoint = 0;
  std::size_t length = 0;  // in bytes; 0 where the bytes do not begin a valid character
};

// The character at the beginning of `bytes`. Overlong forms, surrogates and cut-off sequences are
// not valid.
Utf8Character DecodeUtf8Character(std::string_view bytes);

// Appends one or two UTF-16 units.
void AppendCodePoint(std::u16string& text, char32_t codePoint);

}  // namespace verlume::richtext
