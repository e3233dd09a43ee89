#include "reach/shown_words.h"

#include <cstddef>

#include "shell/nickname.h"

namespace verlume {

std::u16string ShownWords(std::u16string_view words) {
  constexpr std::size_t kLongest = 120;
  std::u16string shown;
  while (!words.empty()) {
    const std::u16string_view character = FirstCharacter(words);
    const std::u16string piece =
        IsShowable(character) ? std::u16string(character) : EscapeOf(character.front());
    if (shown.size() + piece.size() >= kLongest) return shown + u'…';
    shown += piece;
    words.remove_prefix(character.size());
  }
  return shown;
}

}  // namespace verlume
