#include "shell/excerpt.h"

#include "shell/nickname.h"

namespace verlume {
namespace {

constexpr std::u16string_view kEllipsis = u"…";

// Of a text of invisible characters, no more than this is read for each character shown.
constexpr std::size_t kReadForEach = 4;

bool IsBlank(char16_t c) {
  return c == u' ' || c == u'\r' || c == u'\n' || c == u'\t' || c == u'\v' || c == u'\u2028' ||
         c == u'\u2029';
}

}  // namespace

std::u16string Excerpt(std::u16string_view text, std::size_t most) {
  std::u16string_view rest = text.substr(0, kReadForEach * most);
  bool isCut = rest.size() < text.size();
  std::u16string line;
  while (!rest.empty()) {
    const std::u16string_view character = FirstCharacter(rest);
    rest.remove_prefix(character.size());
    if (IsBlank(character.front())) {
      if (!line.empty() && line.back() != u' ') line += u' ';
    } else if (IsShowable(character)) {
      line += character;
    }
    if (line.size() > most) break;
  }
  isCut = isCut || line.size() > most;
  if (!isCut) {
    if (line.ends_with(u' ')) line.pop_back();
    return line;
  }
  while (line.size() > most - kEllipsis.size()) {
    line.pop_back();
    if (!line.empty() && line.back() >= 0xD800 && line.back() < 0xDC00) line.pop_back();
  }
  return line.append(kEllipsis);
}

}  // namespace verlume
