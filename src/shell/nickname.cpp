#include "shell/nickname.h"

#include <algorithm>

#include "richtext/characters.h"
#include "shell/app_state.h"

namespace verlume {
namespace {

struct Range {
  char16_t first;
  char16_t last;
};

// Besides control characters and halves of surrogate pairs.
constexpr Range kNotShowable[] = {
    {0x00AD, 0x00AD},  // soft hyphen
    {0x061C, 0x061C},  // Arabic letter mark
    {0x180E, 0x180E},  // Mongolian vowel separator
    {0x200B, 0x200B},  // zero width space
    {0x200E, 0x200F},  // left-to-right and right-to-left mark
    {0x2028, 0x202E},  // line and paragraph separator, embeddings, overrides
    {0x2060, 0x206F},  // word joiner, invisible operators, isolates, and older such marks
    {0xFEFF, 0xFEFF},  // byte order mark
    {0xFFF9, 0xFFFB},  // marks of annotations
};

template <std::size_t kCount>
bool IsIn(const Range (&ranges)[kCount], char16_t c) {
  return std::any_of(std::begin(ranges), std::end(ranges),
                     [c](const Range& range) { return c >= range.first && c <= range.last; });
}

}  // namespace

std::u16string_view FirstCharacter(std::u16string_view text) {
  return text.substr(0, richtext::BeginsWithSurrogatePair(text) ? 2 : 1);
}

bool IsShowable(std::u16string_view character) {
  if (character.size() == 2) return true;
  const char16_t c = character.front();
  return !richtext::IsControlCharacter(c) && !richtext::IsSurrogate(c) && !IsIn(kNotShowable, c);
}

std::u16string EscapeOf(char16_t c) {
  constexpr std::u16string_view kDigits = u"0123456789ABCDEF";
  std::u16string escape = c < 0x100 ? u"\\x" : u"\\u";
  for (int shift = c < 0x100 ? 4 : 12; shift >= 0; shift -= 4) escape += kDigits[(c >> shift) & 15];
  return escape;
}

std::u16string ShowableNickname(std::u16string_view nickname) {
  std::u16string shown;
  while (!nickname.empty()) {
    const std::u16string_view character = FirstCharacter(nickname);
    const std::u16string piece =
        IsShowable(character) ? std::u16string(character) : EscapeOf(character.front());
    if (shown.size() + piece.size() > kNicknameLimit) break;
    shown += piece;
    nickname.remove_prefix(character.size());
  }
  return shown;
}

}  // namespace verlume
