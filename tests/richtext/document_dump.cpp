#include "richtext/document_dump.h"

#include <cstdio>

namespace verlume::richtext {
namespace {

bool IsSurrogate(char16_t unit) {
  return (unit & 0xF800) == 0xD800;
}

bool IsPair(std::u16string_view text) {
  return text.size() > 1 && (text[0] & 0xFC00) == 0xD800 && (text[1] & 0xFC00) == 0xDC00;
}

std::string Format(const char* pattern, unsigned value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, pattern, value);
  return buffer;
}

void AppendUtf8(std::string& utf8, char32_t codePoint) {
  const auto append = [&](char32_t bits) { utf8 += static_cast<char>(bits); };
  if (codePoint < 0x80) return append(codePoint);
  if (codePoint < 0x800) {
    append(0xC0 | codePoint >> 6);
  } else if (codePoint < 0x10000) {
    append(0xE0 | codePoint >> 12);
    append(0x80 | (codePoint >> 6 & 0x3F));
  } else {
    append(0xF0 | codePoint >> 18);
    append(0x80 | (codePoint >> 12 & 0x3F));
    append(0x80 | (codePoint >> 6 & 0x3F));
  }
  append(0x80 | (codePoint & 0x3F));
}

void AppendUnit(std::string& dump, char16_t unit) {
  const bool control = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
  if (unit == u'\n') {
    dump += "\\n";
  } else if (unit == u'\t') {
    dump += "\\t";
  } else if (unit == u'\\') {
    dump += "\\\\";
  } else if (control || IsSurrogate(unit)) {
    dump += Format("\\u%04x", unit);
  } else {
    AppendUtf8(dump, unit);
  }
}

std::string DumpSize(unsigned halfPoints) {
  return std::to_string(halfPoints / 2) + (halfPoints % 2 != 0 ? ".5" : "");
}

std::string DumpColor(Color color) {
  if (color == kAutomaticColor) return "auto";
  const auto value = static_cast<unsigned>(color);
  return Format("#%06x", (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF));
}

std::string DumpStyle(const CharFormat& format) {
  std::string style;
  if (format.bold) style += 'b';
  if (format.italic) style += 'i';
  if (format.underline) style += 'u';
  if (format.strikethrough) style += 's';
  return style.empty() ? "-" : style;
}

}  // namespace

std::string DumpText(std::u16string_view text) {
  std::string dump;
  while (!text.empty()) {
    const std::size_t length = IsPair(text) ? 2 : 1;
    if (length == 2) {
      AppendUtf8(dump, 0x10000 + ((text[0] & 0x3FFu) << 10) + (text[1] & 0x3FFu));
    } else {
      AppendUnit(dump, text[0]);
    }
    text.remove_prefix(length);
  }
  return dump;
}

std::string Dump(const Document& document) {
  std::string dump;
  std::u16string_view text = document.text;
  for (const Run& run : document.runs) {
    const Font& font = document.fonts.at(run.format.font);
    dump += DumpText(font.name) + '/' + std::to_string(font.charset) + ' ' +
            DumpSize(run.format.halfPoints) + ' ' + DumpColor(run.format.color) + ' ' +
            DumpStyle(run.format) + '|' + DumpText(text.substr(0, run.length)) + '\n';
    text.remove_prefix(run.length);
  }
  if (!text.empty()) dump += "text without a run: " + DumpText(text) + '\n';
  return dump;
}

}  // namespace verlume::richtext
