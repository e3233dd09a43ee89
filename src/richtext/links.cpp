#include "richtext/links.h"

#include <algorithm>

#include "richtext/characters.h"

namespace verlume::richtext {
namespace {

constexpr std::u16string_view kHttp = u"http://";
constexpr std::u16string_view kHttps = u"https://";
constexpr std::u16string_view kMail = u"mailto:";
constexpr std::u16string_view kWeb = u"www.";

// ' is missing: addresses hold it.
constexpr std::u16string_view kNeverInside =
    u"<>\"`^{}|\\\u00AB\u00BB\u2018\u2019\u201A\u201C\u201D\u201E\u2039\u203A";
constexpr std::u16string_view kNotAtTheEnd = u".,;:!?'\u2026\u00B7\u0387\u037E\u060C\u3001\u3002";
struct Brackets {
  char16_t opening;
  char16_t closing;
};
constexpr Brackets kBrackets[] = {{u'(', u')'}, {u'[', u']'}};

bool IsSeen(char16_t c) {
  const bool isControl = c <= u' ' || (c >= 0x7F && c <= 0xA0);
  const bool isBlank = c == 0x1680 || (c >= 0x2000 && c <= 0x200F) || c == 0x3000;
  const bool isMark = (c >= 0x2028 && c <= 0x202F) || (c >= 0x205F && c <= 0x206F);
  const bool isOther = c == 0x00AD || c == 0x061C || c == 0xFEFF || c >= 0xFFF0;
  return !(isControl || isBlank || isMark || isOther);
}

bool IsInside(char16_t c) {
  return IsSeen(c) && kNeverInside.find(c) == kNeverInside.npos;
}

char16_t Lower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 0x20) : c;
}

bool BeginsWith(std::u16string_view text, std::u16string_view beginning) {
  if (text.size() < beginning.size()) return false;
  return std::equal(beginning.begin(), beginning.end(), text.begin(),
                    [](char16_t one, char16_t other) { return one == Lower(other); });
}

bool IsWordCharacter(char16_t c) {
  return !IsAscii(c) || (c >= u'0' && c <= u'9') || (Lower(c) >= u'a' && Lower(c) <= u'z');
}

bool BeginsAddress(std::u16string_view text) {
  return BeginsWith(text, kHttp) || BeginsWith(text, kHttps) || BeginsWith(text, kMail) ||
         BeginsWith(text, kWeb);
}

bool IsUnbalanced(std::u16string_view link, const Brackets& brackets) {
  return std::count(link.begin(), link.end(), brackets.closing) >
         std::count(link.begin(), link.end(), brackets.opening);
}

bool MayEnd(std::u16string_view link) {
  const char16_t last = link.back();
  if (kNotAtTheEnd.find(last) != kNotAtTheEnd.npos) return false;
  return std::none_of(std::begin(kBrackets), std::end(kBrackets), [&](const Brackets& brackets) {
    return last == brackets.closing && IsUnbalanced(link, brackets);
  });
}

// Whether something is named behind the scheme.
bool LeadsSomewhere(std::u16string_view link) {
  if (BeginsWith(link, kMail)) {
    const std::size_t at = link.find(u'@');
    return at != link.npos && at > kMail.size() && at + 1 < link.size();
  }
  const std::size_t scheme = BeginsWith(link, kWeb)    ? kWeb.size()
                             : BeginsWith(link, kHttp) ? kHttp.size()
                                                       : kHttps.size();
  return link.size() > scheme && (IsWordCharacter(link[scheme]) || link[scheme] == u'[');
}

}  // namespace

Link WindowAround(std::size_t textLength, std::size_t position) {
  const std::size_t at = std::min(position, textLength);
  const std::size_t from = at - std::min(at, kLongestLink + 1);
  return {from, std::min(textLength, at + kLongestLink + 1) - from};
}

std::optional<Link> LinkAt(std::u16string_view text, std::size_t position) {
  const Link window = WindowAround(text.size(), position);
  const std::size_t windowEnd = window.start + window.length;
  if (position >= windowEnd || !IsInside(text[position])) return std::nullopt;
  std::size_t from = position;
  while (from > window.start && IsInside(text[from - 1])) --from;
  std::size_t end = position;
  while (end < windowEnd && IsInside(text[end])) ++end;
  for (std::size_t start = from; start <= position; ++start) {
    const bool isWithinWord = start > from && IsWordCharacter(text[start - 1]);
    if (isWithinWord || !BeginsAddress(text.substr(start, end - start))) continue;
    std::u16string_view link = text.substr(start, end - start);
    while (!link.empty() && !MayEnd(link)) link.remove_suffix(1);
    if (!LeadsSomewhere(link) || position >= start + link.size()) return std::nullopt;
    if (link.size() > kLongestLink) return std::nullopt;
    return Link{start, link.size()};
  }
  return std::nullopt;
}

std::u16string AddressOf(std::u16string_view link) {
  return (BeginsWith(link, kWeb) ? std::u16string(kHttps) : std::u16string()) +
         std::u16string(link);
}

}  // namespace verlume::richtext
