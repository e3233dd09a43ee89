// Gathers the text of a document and the runs over it.
#pragma once

#include <cstddef>

#include "richtext/document.h"

namespace verlume::richtext {

class RunBuilder {
 public:
  explicit RunBuilder(std::size_t expectedLength) { text_.reserve(expectedLength); }

  // The format of what is appended from here on.
  void SetFormat(const CharFormat& format);

  void Append(char16_t unit) { text_.push_back(unit); }

  // Characters of a string, or ASCII bytes.
  template <typename Ch>
  void Append(const Ch* begin, const Ch* end) {
    text_.append(begin, end);
  }

  // Appends a line break that ends a paragraph: the last one of the document adds no empty line.
  void EndParagraph();

  // The text and the runs; the fonts are left empty.
  Document Finish();

 private:
  void CloseRun();

  std::u16string text_;
  std::vector<Run> runs_;
  CharFormat format_;             // of the run that is open
  std::size_t runStart_ = 0;      // where it begins
  std::size_t paragraphEnd_ = 0;  // the length of the text behind the last paragraph's end
};

}  // namespace verlume::richtext
