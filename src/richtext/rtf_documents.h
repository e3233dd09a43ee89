// Texts that hold several RTF documents: TCP may join what was sent apart.
#pragma once

#include <string_view>
#include <vector>

#include "richtext/document.h"

namespace verlume::richtext {

struct ReadDocument {
  std::u16string_view source;  // a piece of the text that was read
  Document document;
};

// Reads the RTF documents of a text, and the plain text between and behind them, in order; each
// once. Nothing is left out but line ends and NULs that stand alone behind a document. A text
// without any RTF is one document. Linear.
std::vector<ReadDocument> ReadRtfDocuments(std::u16string_view text);

// The same, joined into one document: the text may hold a hundred thousand.
Document ReadJoinedRtfDocuments(std::u16string_view text);

}  // namespace verlume::richtext
