// Finds addresses in text: what begins with http://, https://, mailto: or www.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace verlume::richtext {

// No address is longer, in UTF-16 units.
inline constexpr std::size_t kLongestLink = 2048;

struct Link {
  std::size_t start = 0;
  std::size_t length = 0;
};

// The address in which a position of the text is. It begins at the start of a word, and ends before
// a blank, a quotation mark, an angle bracket or a character that is not seen, and before closing
// punctuation; a closing bracket belongs to it only if its opening one does. The cost depends on
// kLongestLink, not on the text.
std::optional<Link> LinkAt(std::u16string_view text, std::size_t position);

// The part of a text, around a position, which LinkAt looks at.
Link WindowAround(std::size_t textLength, std::size_t position);

// What to open: an address that begins with www. gets https:// in front.
std::u16string AddressOf(std::u16string_view link);

}  // namespace verlume::richtext
