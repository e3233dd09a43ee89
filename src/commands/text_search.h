// Searches a text, ignoring case and accents.
#pragma once

#include <cstddef>
#include <functional>
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

// Goes once through a text that is handed over in pieces. A match begins behind the end of the one
// before it.
class TextSearch {
 public:
  using TakeMatch = std::function<void(const TextMatch&)>;

  // `locale` decides which letters are equal; it must outlive the search. `take` gets the matches,
  // each as soon as its end is known.
  TextSearch(std::u16string_view words, const Locale& locale, TakeMatch take);

  // No letter to look for: nothing matches.
  bool IsEmpty() const { return letters_.empty(); }

  // Begins anew with a text whose first piece stands at this position.
  void Restart(std::size_t position);
  // The next piece. Takes time linear in its length.
  void Feed(std::u16string_view piece);
  // There are no more pieces.
  void Finish();

 private:
  void FeedLetter(char16_t letter);

  const Locale& locale_;
  TakeMatch take_;
  std::u16string letters_;
  // By number of letters matched so far: how many stay matched when the next letter differs.
  std::vector<std::size_t> fallback_;
  std::size_t position_ = 0;
  std::size_t matched_ = 0;          // letters
  std::vector<std::size_t> places_;  // of as many letters before the position as are looked for
  std::size_t lettersSeen_ = 0;
  std::optional<TextMatch> match_;  // accents that follow will be part of it
};

}  // namespace verlume
