// Searches a text, ignoring case and accents.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system.h"

namespace verlume {

// A part of a text, in UTF-16 units. Combining accents after its last letter are part of it.
struct TextMatch {
  std::size_t start = 0;
  std::size_t length = 0;

  bool operator==(const TextMatch&) const = default;
};

class TextSearch {
 public:
  // `locale` decides which letters are equal; it must outlive the search.
  TextSearch(std::u16string_view words, const Locale& locale);

  // No letter to look for: nothing matches.
  bool IsEmpty() const { return letters_.empty(); }

  // The first match that starts at `from` or after it. Takes time linear in the text up to the end
  // of the match.
  std::optional<TextMatch> Find(std::u16string_view text, std::size_t from) const;

 private:
  TextMatch MatchThatEndsWith(std::u16string_view text, std::size_t lastLetter) const;

  const Locale& locale_;
  std::u16string letters_;
  // By number of letters matched so far: how many stay matched when the next letter differs.
  std::vector<std::size_t> fallback_;
};

}  // namespace verlume
