// Finds the end of one RTF document in a stream of bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace verlume::richtext {

// Counts the braces of a document, byte by byte, from the byte after its "{\rtf" on. Escaped
// braces and the data of \binN are no braces.
class DocumentScan {
 public:
  // True when `byte` closes the document.
  bool Feed(char byte);

  // How many of the next bytes tell nothing: they need not be fed.
  template <typename Ch>
  std::size_t Skippable(std::basic_string_view<Ch> next) const {
    if (in_ != In::Text) return 0;
    const auto end = std::find_if(next.begin(), next.end(), [](Ch character) {
      return character == '\\' || character == '{' || character == '}';
    });
    return static_cast<std::size_t>(end - next.begin());
  }

 private:
  enum class In { Text, Escape, Word, Parameter, Data };

  bool FeedText(char byte);
  void FeedEscape(char byte);
  bool FeedWord(char byte);
  bool FeedParameter(char byte);
  bool EndWord(char byte);

  In in_ = In::Word;  // the word "rtf"
  std::size_t depth_ = 1;
  int letters_ = 3;  // of the word so far
  bool isBin_ = false;
  std::uint64_t parameter_ = 0;  // then the data bytes still to come
  bool isNegative_ = false;
};

}  // namespace verlume::richtext
