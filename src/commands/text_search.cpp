#include "commands/text_search.h"

#include <utility>

namespace verlume {

// The algorithm of Knuth, Morris and Pratt: a peer chooses the text, so the search must take linear
// time for every text.
TextSearch::TextSearch(std::u16string_view words, const Locale& locale, TakeMatch take)
    : locale_(locale), take_(std::move(take)) {
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
  places_.resize(letters_.size());
}

void TextSearch::Restart(std::size_t position) {
  position_ = position;
  matched_ = 0;
  match_.reset();
}

void TextSearch::Feed(std::u16string_view piece) {
  if (IsEmpty()) return;
  for (const char16_t c : piece) {
    if (const char16_t letter = locale_.BaseLetter(c)) {
      Finish();
      FeedLetter(letter);
    } else if (match_) {
      ++match_->length;
    }
    ++position_;
  }
}

void TextSearch::FeedLetter(char16_t letter) {
  places_[lettersSeen_++ % places_.size()] = position_;
  while (matched_ > 0 && letters_[matched_] != letter) matched_ = fallback_[matched_];
  if (letters_[matched_] == letter) ++matched_;
  if (matched_ < letters_.size()) return;
  const std::size_t start = places_[lettersSeen_ % places_.size()];
  match_ = TextMatch{start, position_ + 1 - start};
  matched_ = 0;
}

void TextSearch::Finish() {
  if (match_) take_(*std::exchange(match_, std::nullopt));
}

}  // namespace verlume
