// Counts the looks of a text. Qt opens a font for each family, size, style and script that it has
// not shown lately, which takes it up to 0.2 ms. So what is inserted without a break is limited in
// looks too, not in characters alone.
#pragma once

#include <cstddef>
#include <set>
#include <string_view>
#include <utility>

#include "richtext/document.h"

namespace verlume::qt {

// How many looks may be inserted before the window handles its events.
inline constexpr std::size_t kMostLooksAtOnce = 64;

// The looks of the texts of one document.
class LookCount {
 public:
  // Counts no more than `most` looks, two or more.
  explicit LookCount(std::size_t most) : most_(most) {}

  // Counts those of a text in one format. Returns how much of it stands before a look that is one
  // too many: all of it when there is none.
  std::size_t LengthWithin(std::u16string_view text, const richtext::CharFormat& format);
  std::size_t Looks() const { return looks_.size(); }

 private:
  using Look = std::pair<richtext::CharFormat, int>;  // the second is a group of characters
  bool Add(const Look& look);

  const std::size_t most_;
  std::set<Look> looks_;
};

// The looks of a document; `most` + 1 when it has more than `most`.
std::size_t CountLooks(const richtext::Document& document, std::size_t most);

}  // namespace verlume::qt
