// Gathers the text of a document and the runs over it.
#pragma once

#include <algorithm>
#include <cstddef>

#include "richtext/characters.h"
#include "richtext/document.h"

namespace verlume::richtext {

class RunBuilder {
 public:
  explicit RunBuilder(std::size_t expectedLength) {
    text_.reserve(expectedLength);
    runs_.reserve(8);  // enough for a chat line
  }

  // The format of what is appended from here on.
  void SetFormat(const CharFormat& format);

  void Append(char16_t unit) { text_.push_back(unit); }

  void Append(const char16_t* begin, const char16_t* end) { text_.append(begin, end); }

  // ASCII bytes.
  void Append(const char* begin, const char* end) {
    const std::size_t length = text_.size();
    text_.resize(length + static_cast<std::size_t>(end - begin));
    std::copy(begin, end, text_.begin() + static_cast<std::ptrdiff_t>(length));
  }

  // Appends a line break that ends a paragraph: the last one of the document adds no empty line.
  void EndParagraph();

  // The text and the runs since the last part, of which neighbours may still be equal; the fonts
  // are left empty. A paragraph's end that nothing follows yet waits for the next part.
  Document TakePart();

 private:
  void CloseRun();
  void KeepParagraphEnd(Document& part);

  std::u16string text_;
  std::vector<Run> runs_;
  CharFormat format_;             // of the run that is open
  std::size_t runStart_ = 0;      // where it begins
  std::size_t paragraphEnd_ = 0;  // the length of the text behind the last paragraph's end
};

}  // namespace verlume::richtext
