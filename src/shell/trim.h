// Texts without the blanks around them.
#pragma once

#include <string_view>

namespace verlume {

// The text without the characters of `blanks` at its start and end: a view into it.
constexpr std::u16string_view Trim(std::u16string_view text, std::u16string_view blanks = u" ") {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace verlume
