#include "support/arriving_texts.h"

#include <cstdio>
#include <iterator>

#include "richtext/code_pages.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume {
namespace {

constexpr std::u16string_view kPieces[] = {
    // Words, and what only looks like the program's own
    u"hello", u" ", u"Καλημέρα", u"привет", u"😀", u"<Ann>", u"***** ", u"$r", u"$l", u"/exit",
    u"/nick Eve", u"[2026-03-07_09:05:30]", u"[2026-03-07_09:05:30]***** Disconnected.",
    u"\r\n[2026-03-07_09:05:30]<Ann>I agree", u"../../etc/passwd", u"<b>bold</b>", u"&amp;",
    u"https://example.org/", u"%s%n",
    // Escapes that are only text
    u"\\", u"\\\\", u"\\x07", u"\\x1B", u"\\u202E", u"\\u0041", u"\\n", u"\\r\\n", u"\\0",
    // RTF
    u"{", u"}", u"{\\rtf1\\ansi ", u"\\par ", u"\\b ", u"\\u8238?", u"\\'e1", u"\\line", u"\\*",
    u"{\\field", u"\\fs200 ",
    // Line ends
    u"\r\n", u"\r", u"\n", u"\n\r", u"\r\r\n", u"\v", u"\f", u"\u0085", u"\u2028", u"\u2029",
    // Direction marks, and what is not seen
    u"\u202E", u"\u202D", u"\u202A", u"\u202B", u"\u202C", u"\u2066", u"\u2067", u"\u2068",
    u"\u2069", u"\u200E", u"\u200F", u"\u061C", u"\u200B", u"\u2060", u"\u00AD", u"\uFEFF",
    u"\uFFFE", u"\uFFFC", u"\uFDD0", u"\uE000"};

// No string literal can hold these.
constexpr char16_t kUnits[] = {0x0000, 0x0001, 0x0007, 0x0008, 0x0009, 0x001A,
                               0x001B, 0x001F, 0x007F, 0x0080, 0x009B, 0x009F,
                               0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xFFFF};

bool IsHigh(char16_t c) {
  return c >= 0xD800 && c < 0xDC00;
}

bool IsLow(char16_t c) {
  return c >= 0xDC00 && c < 0xE000;
}

bool IsControl(char16_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

bool IsDirectionMark(char16_t c) {
  return c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069);
}

// Calls `add` for each unit; CR LF counts as one LF, and so does CR.
template <class Add>
void ForEachUnit(std::u16string_view text, Add add) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'\r' && text.substr(i + 1).starts_with(u'\n')) continue;
    add(text[i] == u'\r' ? u'\n' : text[i]);
  }
}

bool IsKeptByTextBoxes(char16_t c) {
  return c == 0 || c == 0xFFFC || (c >= 0xFDD0 && c <= 0xFDEF);
}

}  // namespace

std::u16string ArrivingTexts::Next() {
  std::u16string text;
  for (unsigned pieces = 1 + Below(12); pieces > 0; --pieces) text += NextPiece();
  return text;
}

std::u16string ArrivingTexts::NextPiece() {
  switch (Below(8)) {
    case 0:
      return {kUnits[Below(std::size(kUnits))]};
    case 1:
      return {static_cast<char16_t>(Below(0x10000))};
    default:
      return std::u16string(kPieces[Below(std::size(kPieces))]);
  }
}

std::u16string SentAsRtf(std::u16string_view text) {
  return richtext::WriteRtf(richtext::ReadPlainText(text));
}

bool CanBeSentPlain(std::u16string_view text) {
  return text.find(u"{\\rtf") == text.npos;
}

std::u16string OnTheWire(std::u16string_view text) {
  return richtext::DecodeGreek(richtext::EncodeGreek(text));
}

std::u16string ShownInPane(std::u16string_view text) {
  std::u16string shown;
  ForEachUnit(text, [&](char16_t c) {
    const bool isLineEnd = c == 0x2028 || c == 0x2029;
    shown += isLineEnd ? u'\n' : IsKeptByTextBoxes(c) ? u'\uFFFD' : c;
  });
  return shown;
}

std::u16string ShownInLog(std::u16string_view text) {
  std::u16string shown;
  ForEachUnit(text, [&](char16_t c) {
    const bool isBlank = IsControl(c) || c == 0x2028 || c == 0x2029;
    shown += isBlank ? u' ' : c;
  });
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (IsHigh(shown[i]) && i + 1 < shown.size() && IsLow(shown[i + 1])) {
      ++i;
    } else if (IsHigh(shown[i]) || IsLow(shown[i])) {
      shown[i] = u'?';
    }
  }
  return shown;
}

std::u16string WithDirectionMarksEscaped(std::u16string_view text) {
  std::u16string escaped;
  for (const char16_t c : text) {
    if (!IsDirectionMark(c)) {
      escaped += c;
      continue;
    }
    escaped += u"\\u";
    for (int shift = 12; shift >= 0; shift -= 4) escaped += u"0123456789ABCDEF"[(c >> shift) & 15];
  }
  return escaped;
}

std::string Printable(std::u16string_view text) {
  std::string printable;
  for (const char16_t c : text) {
    char escape[8];
    std::snprintf(escape, sizeof escape, c >= 0x20 && c < 0x7F ? "%c" : "\\u%04X", unsigned{c});
    printable += escape;
  }
  return printable;
}

}  // namespace verlume
