#include "richtext/rtf_escape.h"

#include <array>
#include <charconv>
#include <cstdint>

#include "richtext/characters.h"
#include "richtext/code_pages.h"

namespace verlume::richtext {
namespace {

bool IsPlain(char16_t unit) {
  const bool isMarkup = unit == u'\\' || unit == u'{' || unit == u'}';
  return IsAscii(unit) && !IsControlCharacter(unit) && !isMarkup;
}

void AppendHex(std::u16string& rtf, unsigned char byte) {
  constexpr std::u16string_view kDigits = u"0123456789abcdef";
  const char16_t escape[] = {u'\\', u'\'', kDigits[byte >> 4], kDigits[byte & 0xF]};
  rtf.append(escape, std::size(escape));
}

void AppendUnit(std::u16string& rtf, char16_t unit, bool greek) {
  const unsigned char byte = greek && !IsAscii(unit) ? GreekByte(unit) : 0;
  if (byte != 0) return AppendHex(rtf, byte);
  rtf += u"\\u";
  AppendNumber(rtf, static_cast<std::int16_t>(unit));
  rtf += u'?';
}

void AppendSpecial(std::u16string& rtf, char16_t unit, bool greek) {
  switch (unit) {
    case u'\\':
    case u'{':
    case u'}':
      rtf += u'\\';
      rtf += unit;
      break;
    case u'\t':
      rtf += u"\\tab ";
      break;
    case u'\r':
    case u'\n':
      rtf += u"\\par\r\n";
      break;
    default:
      AppendUnit(rtf, unit, greek);
  }
}

}  // namespace

void AppendEscaped(std::u16string& rtf, std::u16string_view text, int charset, bool afterWord) {
  const bool greek = charset == kGreekCharset;
  if (afterWord && !text.empty() && IsPlain(text[0])) rtf += u' ';
  for (std::size_t i = 0; i < text.size();) {
    std::size_t end = i;
    while (end < text.size() && IsPlain(text[end])) ++end;
    rtf += text.substr(i, end - i);
    if (end == text.size()) return;
    const bool firstOfPair = text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n';
    if (!firstOfPair) AppendSpecial(rtf, text[end], greek);
    i = end + 1;
  }
}

void AppendFontName(std::u16string& rtf, const Font& font) {
  for (const char16_t unit : font.name) {
    if (IsControlCharacter(unit) || unit == u';') continue;
    if (IsPlain(unit)) {
      rtf += unit;
    } else {
      AppendSpecial(rtf, unit, font.charset == kGreekCharset);
    }
  }
}

void AppendNumber(std::u16string& rtf, int number) {
  std::array<char, 12> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  rtf.append(digits.data(), end);
}

}  // namespace verlume::richtext
