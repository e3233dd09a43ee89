// Text of the conversation for places other than its pane.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace verlume {

// The beginning of a text, at most so many UTF-16 units, as one line: line ends and tabs are
// blanks, and characters that are not showable (shell/nickname.h) are left out. A text that is cut
// ends with an ellipsis.
std::u16string Excerpt(std::u16string_view text, std::size_t most);

}  // namespace verlume
