#include "richtext/document_joiner.h"

#include <vector>

#include "richtext/rtf_limits.h"

namespace verlume::richtext {

void DocumentJoiner::Add(Document document) {
  // Usually there is one.
  if (joined_.runs.empty()) return Begin(std::move(document));
  std::vector<std::uint16_t> indices;
  indices.reserve(document.fonts.size());
  for (const Font& font : document.fonts) indices.push_back(IndexOf(font));
  for (Run run : document.runs) {
    run.format.font = indices[run.format.font];
    if (!joined_.runs.empty() && joined_.runs.back().format == run.format) {
      joined_.runs.back().length += run.length;
    } else {
      joined_.runs.push_back(run);
    }
  }
  joined_.text += document.text;
}

void DocumentJoiner::Begin(Document document) {
  joined_ = std::move(document);
  fonts_.clear();
  for (std::size_t i = 0; i < joined_.fonts.size(); ++i) {
    const Font& font = joined_.fonts[i];
    fonts_.emplace(std::pair(font.name, font.charset), static_cast<std::uint16_t>(i));
  }
}

std::uint16_t DocumentJoiner::IndexOf(const Font& font) {
  const auto known = fonts_.find({font.name, font.charset});
  if (known != fonts_.end()) return known->second;
  const auto next = static_cast<std::uint16_t>(joined_.fonts.size());
  if (next >= limits::kMaxFonts) return static_cast<std::uint16_t>(next - 1);
  joined_.fonts.push_back(font);
  fonts_.emplace(std::pair(font.name, font.charset), next);
  return next;
}

}  // namespace verlume::richtext
