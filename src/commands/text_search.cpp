#include "commands/text_search.h"

namespace verlume {

// The algorithm of Knuth, Morris and Pratt: a peer chooses the text, so the search must take linear
// time for every text.
TextSearch::TextSearch(std::u16string_view words, const Locale& locale) : locale_(locale) {
  for (const char16_t c : words) {
    if (const char16_t letter = locale.BaseLetter(c)) letters_ += letter;
  }
  fallback_.assign(letters_.size() + 1, 0);
  std::size_t matched = 0;
  for (std::size_t i = 1; i < letters_.size(); ++i) {
    while (matched > 0 && letters_[matched] != letters_[i]) matched = fallback_[matched];
    if (letters_[matched] == letters_[i]) ++matched;
    fallback_[i + 1] = matched;
  }
}

std::optional<TextMatch> TextSearch::Find(std::u16string_view text, std::size_t from) const {
  if (IsEmpty()) return std::nullopt;
  std::size_t matched = 0;
  for (std::size_t i = from; i < text.size(); ++i) {
    const char16_t letter = locale_.BaseLetter(text[i]);
    if (letter == 0) continue;
    while (matched > 0 && letters_[matched] != letter) matched = fallback_[matched];
    if (letters_[matched] == letter) ++matched;
    if (matched == letters_.size()) return MatchThatEndsWith(text, i);
  }
  return std::nullopt;
}

TextMatch TextSearch::MatchThatEndsWith(std::u16string_view text, std::size_t lastLetter) const {
  std::size_t start = lastLetter;
  for (std::size_t letters = 1; letters < letters_.size();) {
    if (locale_.BaseLetter(text[--start]) != 0) ++letters;
  }
  std::size_t end = lastLetter + 1;
  while (end < text.size() && locale_.BaseLetter(text[end]) == 0) ++end;
  return {start, end - start};
}

}  // namespace verlume
