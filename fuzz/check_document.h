// Checks what the headers of richtext/ promise of every document, whatever it was read from.
#pragma once

#include <algorithm>

#include "fuzz/check.h"
#include "richtext/document.h"
#include "richtext/rtf_limits.h"

namespace verlume::fuzz {

inline void CheckSound(const richtext::Document& document) {
  namespace limits = richtext::limits;
  std::size_t length = 0;
  const richtext::Run* previous = nullptr;
  for (const richtext::Run& run : document.runs) {
    const richtext::CharFormat& format = run.format;
    Check(run.length > 0, "no run is empty");
    Check(format.font < document.fonts.size(), "a run's font is in the table");
    Check(format.halfPoints >= limits::kMinHalfPoints, "a size is no smaller than the smallest");
    Check(format.halfPoints <= limits::kMaxHalfPoints, "a size is no larger than the largest");
    Check(format.color >= kAutomaticColor && format.color <= 0xFFFFFF, "a colour is one");
    Check(!previous || previous->format != format, "neighbours differ in format");
    length += run.length;
    previous = &run;
  }
  Check(length == document.text.size(), "the runs add up to the text");
  for (const richtext::Font& font : document.fonts) {
    Check(font.name.size() <= limits::kMaxFontNameLength, "a font's name is cut");
  }
}

// Whether text and formats are the same; unused fonts in the tables do not count.
inline bool ShowTheSame(const richtext::Document& a, const richtext::Document& b) {
  const auto isSame = [&](richtext::Run x, richtext::Run y) {
    if (a.fonts[x.format.font] != b.fonts[y.format.font]) return false;
    x.format.font = y.format.font;
    return x == y;
  };
  return a.text == b.text &&
         std::equal(a.runs.begin(), a.runs.end(), b.runs.begin(), b.runs.end(), isSame);
}

}  // namespace verlume::fuzz
