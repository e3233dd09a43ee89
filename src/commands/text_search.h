// Finds words in a text as a reader does: whatever their case and accents.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system.h"

namespace verlume {

// A part of a text, in UTF-16 units; accents that follow its last letter belong to it.
struct TextMatch {
  std::size_t start = 0;
  std::size_t length = 0;

  bool operator==(const TextMatch&) const = default;
};

class TextSearch {
 public:
  // `locale` says which letters are the same; it outlives the search.
  TextSearch(std::u16string_view words, const Locale& locale);

  // Nothing to look for: there is no match anywhere.
  bool IsEmpty() const { return letters_.empty(); }

  // The first match that starts at `from` or behind. Takes time linear in what lies between.
  std::optional<TextMatch> Find(std::u16string_view text, std::size_t from) const;

 private:
  TextMatch MatchThatEndsWith(std::u16string_view text, std::size_t lastLetter) const;

  const Locale& locale_;
  std::u16string letters_;
  // Per number of letters that have matched: how many still do when the next one does not.
  std::vector<std::size_t> fallback_;
};

}  // namespace verlume
