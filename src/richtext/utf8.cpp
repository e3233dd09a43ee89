#include "richtext/utf8.h"

#include "richtext/characters.h"

namespace verlume::richtext {
namespace {

struct Lead {
  std::size_t length;
  char32_t bits;
  char32_t smallest;  // below this the form is overlong
};

Lead ReadLead(unsigned char byte) {
  if (byte < 0x80) return {1, byte, 0};
  if (byte >= 0xC2 && byte < 0xE0) return {2, byte & 0x1Fu, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return {3, byte & 0x0Fu, 0x800};
  if (byte >= 0xF0 && byte < 0xF5) return {4, byte & 0x07u, 0x10000};
  return {0, 0, 0};
}

}  // namespace

Utf8Character DecodeUtf8Character(std::string_view bytes) {
  if (bytes.empty()) return {};
  const Lead lead = ReadLead(static_cast<unsigned char>(bytes[0]));
  if (lead.length == 0 || lead.length > bytes.size()) return {};
  char32_t codePoint = lead.bits;
  for (std::size_t i = 1; i < lead.length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if ((byte & 0xC0) != 0x80) return {};
    codePoint = codePoint << 6 | (byte & 0x3Fu);
  }
  const bool isOutside = codePoint < lead.smallest || codePoint > 0x10FFFF;
  if (isOutside || IsSurrogate(codePoint)) return {};
  return {codePoint, lead.length};
}

void AppendCodePoint(std::u16string& text, char32_t codePoint) {
  if (codePoint < 0x10000) {
    text.push_back(static_cast<char16_t>(codePoint));
    return;
  }
  const char32_t offset = codePoint - 0x10000;
  text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
  text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
}

}  // namespace verlume::richtext
