#include "platform_qt/os/local_text_windows.h"

#include <windows.h>

#include <algorithm>
#include <limits>

#include "platform_qt/os/local_text.h"
#include "platform_qt/os/machine.h"
#include "platform_qt/os/utf8_file_text.h"
#include "richtext/characters.h"
#include "richtext/utf8.h"

namespace verlume::qt {
namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::string_view WithoutMark(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return bytes;
}

// Takes the first line, with its end, from the bytes. No byte of a longer character is a line feed.
std::string_view TakeLine(std::string_view& bytes) {
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  const std::size_t feed = std::min(bytes.find('\n'), bytes.size() - 1);
  const std::string_view line = bytes.substr(0, std::min(feed + 1, kMost));
  bytes.remove_prefix(line.size());
  return line;
}

// False, with the text as it was, if the line is not UTF-8.
bool AppendUtf8Line(std::u16string& text, std::string_view line) {
  const std::size_t before = text.size();
  while (!line.empty()) {
    const richtext::Utf8Character next = richtext::DecodeUtf8Character(line.substr(0, 4));
    if (next.length == 0) {
      text.resize(before);
      return false;
    }
    richtext::AppendCodePoint(text, next.codePoint);
    line.remove_prefix(next.length);
  }
  return true;
}

// No page makes more units of a line than it has bytes.
void AppendLineInPage(std::u16string& text, std::string_view line, unsigned codePage) {
  const std::size_t before = text.size();
  const int size = static_cast<int>(line.size());
  text.resize(before + line.size());
  const int length = ::MultiByteToWideChar(codePage, 0, line.data(), size,
                                           reinterpret_cast<wchar_t*>(&text[before]), size);
  text.resize(before + static_cast<std::size_t>(length));
}

void AppendLine(std::u16string& text, std::string_view line, unsigned codePage) {
  if (!AppendUtf8Line(text, line)) AppendLineInPage(text, line, codePage);
}

// '?', or a character that looks alike, for what the page does not have. In parts, so that a long
// text is not in memory three times; a pair that is cut becomes two of them.
std::string InPage(std::u16string_view text, unsigned codePage) {
  constexpr std::size_t kMostUnits = 16 * 1024;
  constexpr std::size_t kMostBytes = 4;  // of a unit
  std::string bytes;
  bytes.reserve(text.size());
  std::string buffer(kMostBytes * kMostUnits, '\0');
  while (!text.empty()) {
    const std::u16string_view piece = text.substr(0, kMostUnits);
    const int count = ::WideCharToMultiByte(
        codePage, 0, reinterpret_cast<const wchar_t*>(piece.data()), static_cast<int>(piece.size()),
        buffer.data(), static_cast<int>(buffer.size()), nullptr, nullptr);
    bytes.append(buffer, 0, static_cast<std::size_t>(count));
    text.remove_prefix(piece.size());
  }
  return bytes;
}

bool ReadsAs(std::string_view bytes, std::u16string_view text, unsigned codePage) {
  bytes = WithoutMark(bytes);
  std::u16string line;
  while (!bytes.empty()) {
    line.clear();
    AppendLine(line, TakeLine(bytes), codePage);
    if (!text.starts_with(line)) return false;
    text.remove_prefix(line.size());
  }
  return text.empty();
}

// The machine's: GetACP tells this program's own, which is UTF-8 (see its manifest).
unsigned LocalCodePage() {
  const auto number = RegistryText(u"SYSTEM\\CurrentControlSet\\Control\\Nls\\CodePage", u"ACP");
  unsigned codePage = 0;
  for (const char16_t c : number.value_or(u"")) {
    if (c < u'0' || c > u'9') return ::GetACP();
    codePage = codePage * 10 + (c - u'0');
  }
  return ::IsValidCodePage(codePage) ? codePage : ::GetACP();
}

}  // namespace

std::string EncodeInCodePage(std::u16string_view text, unsigned codePage) {
  const bool isSameInAll = std::ranges::all_of(text, richtext::IsAscii<char16_t>);
  if (codePage == CP_UTF8 || isSameInAll) return EncodeUtf8File(text);
  std::string bytes = InPage(text, codePage);
  return ReadsAs(bytes, text, codePage) ? bytes : EncodeUtf8File(text);
}

std::u16string DecodeInCodePage(std::string_view bytes, unsigned codePage) {
  std::u16string text;
  text.reserve(bytes.size());
  bytes = WithoutMark(bytes);
  while (!bytes.empty()) AppendLine(text, TakeLine(bytes), codePage);
  return text;
}

std::string EncodeLocal(std::u16string_view text) {
  return EncodeInCodePage(text, LocalCodePage());
}

std::u16string DecodeLocal(std::string_view bytes) {
  return DecodeInCodePage(bytes, LocalCodePage());
}

}  // namespace verlume::qt
