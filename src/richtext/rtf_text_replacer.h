// Search and replace in the text of an RTF document, leaving its markup alone.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace verlume::richtext {

struct RtfReplacement {
  std::u16string_view pattern;  // as the document has it; not empty, does not begin with markup
  std::u16string with;          // RTF
  bool firstOnly = false;
};

// Replaces in the text that a reader shows of the document or the part of one: not in tables,
// groups that are not shown, data, and what stands behind \u for older readers. One pass from left
// to right: where several patterns fit, the first of the list is taken, and what has been put in is
// not searched. Text without any markup is searched whole.
std::u16string ReplaceInRtfText(std::u16string_view rtf, std::span<const RtfReplacement> list);

}  // namespace verlume::richtext
