// Finds the end of one RTF document in a stream of bytes.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "richtext/rtf_limits.h"
#include "richtext/rtf_tokens.h"

namespace verlume::richtext {

// Counts the braces of a document, byte by byte, from the byte after its "{\rtf" on. Escaped
// braces and the data of \binN are no braces. Ends where RtfParser ends; what it keeps of a token
// is a few bytes, so that a token may come in any number of pieces and no byte is looked at twice.
class DocumentScan {
 public:
  // True when `byte` closes the document; nothing may be fed after that.
  bool Feed(char byte);

  // How many of the next bytes tell nothing: they need not be fed.
  template <typename Ch>
  std::size_t Skippable(std::basic_string_view<Ch> next) const {
    if (in_ != In::Text) return 0;
    const auto end = std::find_if(next.begin(), next.end(), IsMarkup<Ch>);
    return static_cast<std::size_t>(end - next.begin());
  }

 private:
  enum class In { Text, Escape, Word, Number, Data };

  bool FeedText(char byte);
  void FeedEscape(char byte);
  bool FeedWord(char byte);
  bool FeedNumber(char byte);
  bool EndWord(char byte);
  bool IsData() const;

  In in_ = In::Word;  // the word "rtf"
  std::size_t depth_ = 1;
  std::array<char, limits::kMaxControlWordLength + 1> letters_ = {'r', 't', 'f'};
  std::size_t letterCount_ = 3;  // those that do not fit are not counted
  int number_ = 0;               // of the word; then the bytes of data still to come
  bool isNegative_ = false;
};

}  // namespace verlume::richtext
