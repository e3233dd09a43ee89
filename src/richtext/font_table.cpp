#include "richtext/font_table.h"

#include <algorithm>

#include "richtext/characters.h"
#include "richtext/code_pages.h"
#include "richtext/rtf_limits.h"

namespace verlume::richtext {
namespace {

constexpr int kAnsiPage = 1252;
constexpr int kDefaultCharset = 1;  // of a declared font that names none

std::uint16_t IndexIn(std::vector<Font>& fonts, const Font& font) {
  const auto found = std::ranges::find(fonts, font);
  const auto index = static_cast<std::uint16_t>(found - fonts.begin());
  if (found == fonts.end()) fonts.push_back(font);
  return index;
}

}  // namespace

FontTable::FontTable() : documentUpperHalf_(UpperHalf(kAnsiPage)) {
  entries_.reserve(4);
  entries_.emplace_back();
}

void FontTable::Begin(int number) {
  isOpen_ = number >= 0 && number <= limits::kMaxFontNumber && entries_.size() <= limits::kMaxFonts;
  if (!isOpen_) return;
  current_ = static_cast<std::uint16_t>(entries_.size());
  const auto place = numbers_.begin() + (PlaceOf(number) - numbers_.cbegin());
  if (place != numbers_.end() && place->first == number) {
    place->second = current_;
  } else {
    numbers_.insert(place, {number, current_});
  }
  entries_.push_back({{{}, kDefaultCharset}, number, nullptr});
}

void FontTable::SetCharset(int charset) {
  if (!isOpen_) return;
  entries_[current_].font.charset = charset;
  const int codePage = CodePageOfCharset(charset);
  if (codePage != 0) entries_[current_].upperHalf = UpperHalf(codePage);
}

void FontTable::SetCodePage(int codePage) {
  if (isOpen_ && IsKnownCodePage(codePage)) entries_[current_].upperHalf = UpperHalf(codePage);
}

void FontTable::AppendName(char16_t unit) {
  if (!isOpen_ || IsControlCharacter(unit)) return;
  std::u16string& name = entries_[current_].font.name;
  if (name.size() < limits::kMaxFontNameLength) name.push_back(unit);
}

void FontTable::SetDocumentCodePage(int codePage) {
  documentUpperHalf_ = UpperHalf(codePage);
}

void FontTable::GiveFontsTo(Document& document) const {
  constexpr std::uint16_t kUnused = 0xFFFF;
  std::vector<std::uint16_t> newIndices(entries_.size(), kUnused);
  std::size_t kept = 0;
  for (Run run : document.runs) {
    const std::uint16_t old = Resolve(run.format.font);
    std::uint16_t& index = newIndices[old];
    if (index == kUnused) index = IndexIn(document.fonts, entries_[old].font);
    run.format.font = index;
    // A format may have come and gone with no text, and two numbers may name one font.
    const bool joins = kept != 0 && document.runs[kept - 1].format == run.format;
    if (joins) {
      document.runs[kept - 1].length += run.length;
    } else {
      document.runs[kept++] = run;
    }
  }
  document.runs.resize(kept);
}

}  // namespace verlume::richtext
