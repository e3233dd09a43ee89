// The run model: what a piece of rich text is, whoever holds it. The RTF reader makes one, the
// RTF writer writes one, a rich-text box shows one.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace verlume {

// A colour as the settings file and the window hold it: 0x00BBGGRR, red in the low byte.
using Color = std::int32_t;

// No colour of its own: the text takes the box's text colour.
inline constexpr Color kAutomaticColor = -1;

namespace richtext {

inline constexpr int kGreekCharset = 161;

struct Font {
  std::u16string name;  // empty: the box's own font
  int charset = kGreekCharset;

  bool operator==(const Font&) const = default;
};

// The look of a character. What it does not say, a rich-text box of this program does not show.
struct CharFormat {
  std::uint16_t font = 0;         // index into Document::fonts
  std::uint16_t halfPoints = 24;  // size in half points; RTF's default is 12 points
  Color color = kAutomaticColor;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;

  // NOLINTNEXTLINE(modernize-use-nullptr): clang-tidy 14 sees a 0 in what the compiler makes of it.
  auto operator<=>(const CharFormat&) const = default;
};

// `length` UTF-16 units of one format.
struct Run {
  std::size_t length = 0;
  CharFormat format;

  bool operator==(const Run&) const = default;
};

// A rich text. Lines are separated by u'\n'; the last line has none behind it. The lengths of the
// runs add up to text.size(), no run is empty, and neighbours differ in format.
struct Document {
  std::u16string text;
  std::vector<Run> runs;
  std::vector<Font> fonts;  // never empty when there are runs

  bool operator==(const Document&) const = default;
};

}  // namespace richtext
}  // namespace verlume
