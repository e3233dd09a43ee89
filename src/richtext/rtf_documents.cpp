#include "richtext/rtf_documents.h"

#include <algorithm>
#include <utility>

#include "richtext/characters.h"
#include "richtext/document_joiner.h"
#include "richtext/rtf_parser.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

constexpr std::u16string_view kOpening = u"{\\rtf";

bool IsLineEndOrNul(char16_t c) {
  return IsLineEnd(c) || c == u'\0';
}

// The document that the text begins with. One that is cut off reaches to the end of the text.
ReadDocument ReadFirst(std::u16string_view text) {
  // Of many short documents none must ask for memory as if it were all of them.
  const std::size_t expectedLength = std::min<std::size_t>(text.size() / 2, 4096);
  RtfParser<char16_t, RtfContent> parser(text.data(), text.data() + text.size(), expectedLength);
  parser.ReadOn(text.size());
  const auto length = static_cast<std::size_t>(parser.At() - text.data());
  return {.source = text.substr(0, length), .document = parser.GetListener().TakePart()};
}

// Hands the documents over one by one.
template <typename Take>
void ReadEach(std::u16string_view text, Take take) {
  bool isFirst = true;
  while (!text.empty()) {
    const bool isRtf = LooksLikeRtf(text);
    const std::u16string_view plain = text.substr(0, isRtf ? 0 : text.find(kOpening));
    const bool isRest =
        !isRtf && !isFirst && std::all_of(plain.begin(), plain.end(), IsLineEndOrNul);
    isFirst = false;
    std::size_t length = plain.size();
    if (!isRest) {
      ReadDocument read =
          isRtf ? ReadFirst(text) : ReadDocument{.source = plain, .document = ReadPlainText(plain)};
      length = read.source.size();
      take(std::move(read));
    }
    text.remove_prefix(length);
  }
}

}  // namespace

std::vector<ReadDocument> ReadRtfDocuments(std::u16string_view text) {
  std::vector<ReadDocument> documents;
  ReadEach(text, [&](ReadDocument read) { documents.push_back(std::move(read)); });
  return documents;
}

Document ReadJoinedRtfDocuments(std::u16string_view text) {
  DocumentJoiner joiner;
  ReadEach(text, [&](ReadDocument read) { joiner.Add(std::move(read.document)); });
  return joiner.Take();
}

}  // namespace verlume::richtext
