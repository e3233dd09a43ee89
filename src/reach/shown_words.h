// Words that came from the network, as they are shown.
#pragma once

#include <string>
#include <string_view>

namespace verlume {

// With a visible escape for every character that is not showable (shell/nickname.h), as in a
// nickname, and cut to 120 characters.
std::u16string ShownWords(std::u16string_view words);

}  // namespace verlume
