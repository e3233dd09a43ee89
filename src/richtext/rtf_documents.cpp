#include "richtext/rtf_documents.h"

#include <algorithm>

#include "richtext/document_scan.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

constexpr std::u16string_view kStart = u"{\\rtf";

// The whole text where the document is cut off.
std::size_t LengthOfDocument(std::u16string_view text) {
  DocumentScan scan;
  for (std::size_t i = kStart.size(); i < text.size(); ++i) {
    i += scan.Skippable(text.substr(i));
    if (i == text.size()) break;
    // What is not ASCII is neither a brace nor part of a control word.
    if (scan.Feed(IsAscii(text[i]) ? static_cast<char>(text[i]) : '?')) return i + 1;
  }
  return text.size();
}

bool IsLineEndOrNul(char16_t c) {
  return IsLineEnd(c) || c == u'\0';
}

}  // namespace

std::vector<std::u16string_view> SplitRtfDocuments(std::u16string_view text) {
  std::vector<std::u16string_view> pieces;
  while (!text.empty()) {
    const bool isDocument = LooksLikeRtf(text);
    const std::size_t length =
        isDocument ? LengthOfDocument(text) : std::min(text.find(kStart), text.size());
    const std::u16string_view piece = text.substr(0, length);
    text.remove_prefix(length);
    const bool isRest =
        !isDocument && !pieces.empty() && std::all_of(piece.begin(), piece.end(), IsLineEndOrNul);
    if (!isRest) pieces.push_back(piece);
  }
  return pieces;
}

std::vector<Document> ReadRtfDocuments(std::u16string_view text) {
  std::vector<Document> documents;
  for (const std::u16string_view piece : SplitRtfDocuments(text)) {
    documents.push_back(ReadRtf(piece));
  }
  return documents;
}

}  // namespace verlume::richtext
