// Texts that hold several RTF documents: TCP may join what was sent apart.
#pragma once

#include <string_view>
#include <vector>

#include "richtext/document.h"

namespace verlume::richtext {

// Cuts a text into RTF documents and the plain text between and behind them, in order; nothing is
// left out but line ends and NULs that stand alone behind a document. A text without any RTF is one
// piece. Linear; the pieces point into the text.
std::vector<std::u16string_view> SplitRtfDocuments(std::u16string_view text);

// The documents that such a text holds, in order; plain text is one too.
std::vector<Document> ReadRtfDocuments(std::u16string_view text);

}  // namespace verlume::richtext
