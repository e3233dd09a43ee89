// What the RTF reader takes from a document at most. A limit cuts formats, never text.
#pragma once

#include <cstddef>

namespace verlume::richtext::limits {

// Groups deeper than this are read with the format of the deepest group kept.
inline constexpr std::size_t kMaxGroupDepth = 256;

// Longer control words are read over as unknown ones.
inline constexpr std::size_t kMaxControlWordLength = 16;

// A control word's number is held within plus and minus this.
inline constexpr int kMaxParameter = 100'000'000;

// Fonts beyond these show in the default font; longer names are cut.
inline constexpr std::size_t kMaxFonts = 512;
inline constexpr int kMaxFontNumber = 32'767;
inline constexpr std::size_t kMaxFontNameLength = 64;

// Colours beyond this show in the automatic colour.
inline constexpr std::size_t kMaxColors = 4'096;

// The sizes shown: 1 to 72 points.
inline constexpr int kMinHalfPoints = 2;
inline constexpr int kMaxHalfPoints = 144;

// The most characters that \uc may name as the fallback of one Unicode character.
inline constexpr int kMaxFallbackCharacters = 255;

}  // namespace verlume::richtext::limits
