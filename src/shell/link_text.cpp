#include "shell/link_text.h"

#include <algorithm>

#include "richtext/characters.h"
#include "shell/look_alikes.h"
#include "shell/nickname.h"

namespace verlume {
namespace {

constexpr std::size_t kLongestShown = 480;  // characters
constexpr std::size_t kShownEnd = 120;
constexpr std::size_t kLineLength = 60;

bool IsAsciiText(std::u16string_view text) {
  return std::all_of(text.begin(), text.end(), [](char16_t c) { return richtext::IsAscii(c); });
}

bool IsGreekLetter(char16_t c) {
  return (c >= 0x0386 && c <= 0x03CE && c != 0x0387) || (c >= 0x1F00 && c <= 0x1FFC);
}

// ASCII letters beside Greek ones are a mixture; digits and hyphens are no letters.
bool IsGreekPart(std::u16string_view part) {
  return std::all_of(part.begin(), part.end(), [](char16_t c) {
    return IsGreekLetter(c) || richtext::IsAsciiDigit(c) || c == u'-';
  });
}

bool IsPlainPart(std::u16string_view part) {
  return IsAsciiText(part) || (IsGreekPart(part) && !MayReadAsLatin(part));
}

bool IsPlainHost(std::u16string_view host) {
  for (std::size_t start = 0; start <= host.size();) {
    const std::size_t end = std::min(host.find(u'.', start), host.size());
    if (!IsPlainPart(host.substr(start, end - start))) return false;
    start = end + 1;
  }
  return true;
}

// Where the host stands in an address: behind "//" and a user's name, before a port and the rest.
struct Place {
  std::size_t start;
  std::size_t end;
};
Place PlaceOfHost(std::u16string_view address) {
  const std::size_t slashes = address.find(u"//");
  if (slashes == address.npos) return {address.size(), address.size()};
  const std::size_t begin = slashes + 2;
  const std::size_t end = std::min(address.find_first_of(u"/?#", begin), address.size());
  const std::size_t at = address.substr(0, end).rfind(u'@');
  const std::size_t start = at != address.npos && at >= begin ? at + 1 : begin;
  const std::size_t bracket = address.substr(0, end).find(u']', start);
  const std::size_t port =
      address.substr(0, end).find(u':', bracket == address.npos ? start : bracket);
  return {start, std::min(port, end)};
}

std::u16string Escaped(std::u16string_view text) {
  std::u16string escaped;
  while (!text.empty()) {
    const std::u16string_view character = FirstCharacter(text);
    if (IsShowable(character)) {
      escaped += character;
    } else {
      for (const char16_t unit : character) escaped += EscapeOf(unit);
    }
    text.remove_prefix(character.size());
  }
  return escaped;
}

std::u16string InLines(std::u16string_view text) {
  std::u16string lines;
  while (text.size() > kLineLength) {
    const bool splitsPair = richtext::IsSurrogate(text[kLineLength]);
    const std::size_t length = kLineLength - (splitsPair ? 1 : 0);
    lines += text.substr(0, length);
    lines += u"\r\n";
    text.remove_prefix(length);
  }
  return lines + std::u16string(text);
}

}  // namespace

std::u16string ShowableHost(const LinkHost& host) {
  return IsPlainHost(host.letters) ? host.letters : host.ascii;
}

std::u16string ShowableAddress(std::u16string_view address, const LinkHost& host) {
  const Place place = PlaceOfHost(address);
  std::u16string text = Escaped(address.substr(0, place.start));
  if (place.start < address.size()) text += ShowableHost(host);
  const std::size_t kept = text.size();
  text += Escaped(address.substr(place.end));
  if (text.size() > kLongestShown) {
    const std::size_t from = std::max(kept, kLongestShown - kShownEnd);
    const std::size_t to = std::max(from, text.size() - kShownEnd);
    if (to > from) text.replace(from, to - from, u"\u2026");
  }
  return InLines(text);
}

}  // namespace verlume
