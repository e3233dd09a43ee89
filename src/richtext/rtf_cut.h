// Cuts RTF documents that are too long to be handed on whole.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace verlume::richtext {

struct CutDocument {
  std::string before;
  std::string behind;  // empty where the document ends before the cut
};

// Groups nested deeper than this are one group behind a cut: each would cost a byte in every piece.
inline constexpr std::size_t kDeepestCut = 64 * 1024;

// Cuts a document, which begins with "{\rtf" and need not have ended yet, about so many bytes from
// its beginning, into a document and one that goes on as it does. What both show is what the
// document shows, in the same formats, but for the end of a paragraph at the cut. `behind` may be
// completed with what comes of the document later.
//
// No word, escape, data or character is cut in two, and no surrogate pair but one whose halves
// stand far apart. A word or data that has no end yet goes on in `behind`, without what has come of
// it and means nothing.
CutDocument CutRtf(std::string_view document, std::size_t length);

}  // namespace verlume::richtext
