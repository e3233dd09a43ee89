// Puts documents together that were one.
#pragma once

#include <algorithm>
#include <cstdint>

#include "richtext/document.h"

namespace verlume::richtext {

// Appends a part; fonts are told by their names.
inline void Append(Document& joined, const Document& part) {
  joined.text += part.text;
  for (Run run : part.runs) {
    const Font& font = part.fonts[run.format.font];
    const auto known = std::ranges::find(joined.fonts, font);
    run.format.font = static_cast<std::uint16_t>(known - joined.fonts.begin());
    if (known == joined.fonts.end()) joined.fonts.push_back(font);
    if (!joined.runs.empty() && joined.runs.back().format == run.format) {
      joined.runs.back().length += run.length;
    } else {
      joined.runs.push_back(run);
    }
  }
}

}  // namespace verlume::richtext
