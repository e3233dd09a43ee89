// Which nicknames a reader takes for the same.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace verlume {

// Whether the two look so much alike that one may be read as the other: they differ only in case,
// accents, blanks, characters without a width, letters of the Latin, Greek and Cyrillic alphabets
// that look the same, or in I l 1 |, O 0 and rn m. Nothing reads like a name of which none of that
// leaves a character.
bool ReadAlike(std::u16string_view one, std::u16string_view other);

// A name that is compared with many: ReadsLike says what ReadAlike says, without looking at the
// letters again.
class ReadName {
 public:
  explicit ReadName(std::u16string_view name);
  bool ReadsLike(const ReadName& other) const;

 private:
  std::array<std::u16string, 3> shapes_;  // all empty if nothing reads like the name
};

// Whether a Latin word may look the same as this text: none of its letters has a shape of its own.
bool MayReadAsLatin(std::u16string_view text);

}  // namespace verlume
