// The fonts an RTF document declares, by the numbers it gives them, and the code page that the
// bytes of each are read in.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "richtext/document.h"

namespace verlume::richtext {

struct FontDeclaration {
  Font font;
  int number = 0;
  const char16_t* upperHalf = nullptr;  // of its code page; null: the document's
};

class FontTable {
 public:
  // The index of a document's default font. Before the document declares that font, and when it
  // never does, it is a font without a name.
  static constexpr std::uint16_t kDefaultFont = 0;

  FontTable();

  // Declaring a font: Begin, then what is known of it, then End. Text behind End is no name.
  void Begin(int number);
  void SetCharset(int charset);
  void SetCodePage(int codePage);
  void AppendName(char16_t unit);
  void End() { isOpen_ = false; }
  bool IsOpen() const { return isOpen_; }  // the last declaration has begun and not ended

  void SetDefault(int number) { defaultNumber_ = number; }
  int DefaultNumber() const { return defaultNumber_; }
  const Font& DefaultFont() const { return entries_[IndexOf(defaultNumber_)].font; }

  // Which fonts that name no code page of their own follow; an unknown one is Windows-1252.
  void SetDocumentCodePage(int codePage);
  const char16_t* DocumentUpperHalf() const { return documentUpperHalf_; }

  // kDefaultFont for numbers that are not declared.
  std::uint16_t IndexOf(int number) const {
    const auto known = PlaceOf(number);
    return known != numbers_.end() && known->first == number ? known->second : kDefaultFont;
  }

  // In the order they came in; the first has index 1. A number may be declared again: it is the
  // later font's from there on.
  std::span<const FontDeclaration> Declarations() const { return std::span(entries_).subspan(1); }

  // The characters of the bytes 0x80 to 0xFF in the font of this index.
  const char16_t* UpperHalfOf(std::uint16_t index) const {
    const char16_t* own = entries_[Resolve(index)].upperHalf;
    return own != nullptr ? own : documentUpperHalf_;
  }

  // The same for the name that is being read.
  const char16_t* UpperHalfOfName() const { return UpperHalfOf(current_); }

  // Gives the document the fonts its runs use, in the order of their first use, and the runs the
  // indices of these. Neighbours that turn out equal become one run.
  void GiveFontsTo(Document& document) const;

 private:
  std::vector<std::pair<int, std::uint16_t>>::const_iterator PlaceOf(int number) const {
    return std::ranges::lower_bound(numbers_, number, {}, &std::pair<int, std::uint16_t>::first);
  }
  std::uint16_t Resolve(std::uint16_t index) const {
    return index == kDefaultFont ? IndexOf(defaultNumber_) : index;
  }

  std::vector<FontDeclaration> entries_;  // the first is the font without a name
  // Number and index, by number. Not indexed by it: a document of 30 bytes may use the greatest.
  std::vector<std::pair<int, std::uint16_t>> numbers_;
  const char16_t* documentUpperHalf_;
  int defaultNumber_ = 0;
  std::uint16_t current_ = 0;
  bool isOpen_ = false;
};

}  // namespace verlume::richtext
