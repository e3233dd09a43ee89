#include "richtext/rtf_reader.h"

#include <string>

#include "richtext/code_pages.h"
#include "richtext/rtf_parser.h"

namespace verlume::richtext {
namespace {

template <typename Ch>
Document ReadMarkup(std::basic_string_view<Ch> rtf) {
  RtfParser<Ch, RtfContent> parser(rtf.data(), rtf.data() + rtf.size(), rtf.size() / 2);
  parser.ReadOn(rtf.size());
  return parser.GetListener().TakePart();
}

}  // namespace

bool LooksLikeRtf(std::u16string_view text) {
  return text.starts_with(u"{\\rtf");
}
bool LooksLikeRtf(std::string_view bytes) {
  return bytes.starts_with("{\\rtf");
}

Document ReadPlainText(std::u16string_view text) {
  Document document;
  document.text.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool firstOfPair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
    if (firstOfPair) continue;
    document.text.push_back(text[i] == u'\r' ? u'\n' : text[i]);
  }
  if (document.text.empty()) return document;
  document.runs.push_back({document.text.size(), {}});
  document.fonts.emplace_back();
  return document;
}

Document ReadRtf(std::u16string_view rtf) {
  return LooksLikeRtf(rtf) ? ReadMarkup(rtf) : ReadPlainText(rtf);
}

Document ReadRtf(std::string_view bytes) {
  return LooksLikeRtf(bytes) ? ReadMarkup(bytes) : ReadPlainText(DecodeUtf8OrGreek(bytes));
}

}  // namespace verlume::richtext
