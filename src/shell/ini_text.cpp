#include "shell/ini_text.h"

#include <algorithm>

#include "shell/trim.h"

namespace verlume::ini_text {
namespace {

constexpr std::u16string_view kBlanks = u" \t";
constexpr char16_t kByteOrderMark = 0xFEFF;

bool IsLineBreak(char16_t c) {
  return c == u'\r' || c == u'\n';
}

std::u16string_view TrimBlanks(std::u16string_view text) {
  return Trim(text, kBlanks);
}

std::u16string_view Unquote(std::u16string_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') &&
                      value.back() == value.front();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

bool SameName(std::u16string_view a, std::u16string_view b) {
  const auto lower = [](char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; };
  return std::ranges::equal(a, b, {}, lower, lower);
}

// The offsets of a line in the text: its start, the end of its content, the start of the next line.
struct Line {
  std::size_t start = 0;
  std::size_t end = 0;
  std::size_t next = 0;

  std::u16string_view Content(std::u16string_view text) const {
    std::u16string_view content = text.substr(start, end - start);
    // Some editors put this mark at the start of a file.
    if (start == 0 && content.starts_with(kByteOrderMark)) content.remove_prefix(1);
    return TrimBlanks(content);
  }
};

// A line ends in "\r\n", "\n" or "\r".
Line LineAt(std::u16string_view text, std::size_t start) {
  std::size_t end = start;
  while (end < text.size() && !IsLineBreak(text[end])) ++end;
  const std::size_t breakLength = end == text.size() ? 0 : text.substr(end, 2) == u"\r\n" ? 2 : 1;
  return {start, end, end + breakLength};
}

std::optional<std::u16string_view> SectionNameOf(std::u16string_view content) {
  if (!content.starts_with(u'[')) return std::nullopt;
  const std::size_t close = content.find(u']');
  if (close == content.npos) return std::nullopt;
  return TrimBlanks(content.substr(1, close - 1));
}

// Most lines are those of other keys, and their first letters tell.
bool IsLineOfKey(std::u16string_view content, std::u16string_view key) {
  if (!SameName(content.substr(0, key.size()), key)) return false;
  const std::size_t behind = content.find_first_not_of(kBlanks, key.size());
  return behind != content.npos && content[behind] == u'=';
}

// Where a key is, or where it would be added.
struct Place {
  bool sectionFound = false;
  bool keyFound = false;
  std::size_t valueStart = 0;  // after the key's "="
  std::size_t valueEnd = 0;    // the end of the key's line
  std::size_t sectionEnd = 0;  // after the last line of the section that is not blank
};

Place Find(std::u16string_view text, std::u16string_view section, std::u16string_view key) {
  Place place;
  for (std::size_t start = 0; start < text.size();) {
    const Line line = LineAt(text, start);
    const std::u16string_view content = line.Content(text);
    const auto sectionName = SectionNameOf(content);
    start = line.next;
    if (place.sectionFound) {
      if (sectionName) break;
      if (IsLineOfKey(content, key)) {
        place.keyFound = true;
        place.valueStart = text.find(u'=', line.start) + 1;
        place.valueEnd = line.end;
        break;
      }
    } else {
      place.sectionFound = sectionName && SameName(*sectionName, section);
    }
    if (place.sectionFound && !content.empty()) place.sectionEnd = line.next;
  }
  return place;
}

std::u16string_view LineEndOf(std::u16string_view text) {
  const Line first = LineAt(text, 0);
  return first.next == first.end ? u"\r\n" : text.substr(first.end, first.next - first.end);
}

std::u16string OnOneLine(std::u16string_view value) {
  std::u16string line(value);
  const auto endsLine = [](char16_t c) { return IsLineBreak(c) || c == 0; };
  std::replace_if(line.begin(), line.end(), endsLine, u' ');
  return line;
}

}  // namespace

std::optional<std::u16string_view> Read(std::u16string_view text, std::u16string_view section,
                                        std::u16string_view key) {
  const Place place = Find(text, section, key);
  if (!place.keyFound) return std::nullopt;
  return Unquote(TrimBlanks(text.substr(place.valueStart, place.valueEnd - place.valueStart)));
}

std::u16string Write(std::u16string_view text, std::u16string_view section, std::u16string_view key,
                     std::u16string_view value) {
  const Place place = Find(text, section, key);
  std::u16string written(text);
  if (place.keyFound) {
    written.replace(place.valueStart, place.valueEnd - place.valueStart, OnOneLine(value));
    return written;
  }
  const std::u16string lineEnd(LineEndOf(text));
  const std::size_t at = place.sectionFound ? place.sectionEnd : text.size();
  const bool lastLineIsOpen = at == text.size() && at > 0 && !IsLineBreak(text.back());
  std::u16string added = lastLineIsOpen ? lineEnd : u"";
  if (!place.sectionFound) added += u"[" + std::u16string(section) + u"]" + lineEnd;
  added += std::u16string(key) + u"=" + OnOneLine(value) + lineEnd;
  return written.insert(at, added);
}

}  // namespace verlume::ini_text
