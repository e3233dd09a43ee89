#include "richtext/rtf_content.h"

#include <string>

#include "richtext/utf8.h"

namespace verlume::richtext {

void RtfContent::AppendCodePoint(char32_t codePoint) {
  std::u16string units;
  richtext::AppendCodePoint(units, codePoint);
  for (const char16_t unit : units) Append(unit);
}

void RtfContent::AppendBreak(bool endsParagraph) {
  if (!InBody()) return;
  if (endsParagraph) {
    builder_.EndParagraph();
  } else {
    builder_.Append(u'\n');
  }
}

Document RtfContent::TakePart() {
  Document document = builder_.TakePart();
  Fonts().GiveFontsTo(document);
  return document;
}

}  // namespace verlume::richtext
