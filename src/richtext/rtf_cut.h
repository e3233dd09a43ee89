// Cuts RTF documents that are too long to be handed on whole.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace verlume::richtext {

struct CutDocument {
  std::string before;
  std::string behind;
};

// Cuts a document, which begins with "{\rtf" and need not have ended yet, behind so many bytes or
// soon after, into a document and one that goes on as it does. What both show is what the document
// shows, in the same formats, but for the end of a paragraph at the cut. Fonts and colours are lost
// where the tables that declare them are longer than 64 KiB. No word, escape, data or character is
// cut in two: what has no end that near goes on in the rest, and data loses what has come of it.
CutDocument CutRtf(std::string_view document, std::size_t length);

}  // namespace verlume::richtext
