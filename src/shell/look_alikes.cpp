#include "shell/look_alikes.h"

#include <algorithm>
#include <string>

#include "richtext/characters.h"
#include "shell/look_alike_tables.h"
#include "shell/nickname.h"

namespace verlume {
namespace {

using namespace look_alike_tables;

// The case in which letters are compared. Greek ν looks like v and Ν like N, so that no single
// case shows all that looks the same.
enum class Case { AsWritten, Small, Capital };

// Capitals and, `distance` further, the small letters.
struct CaseRange {
  char16_t first;
  char16_t last;
  char16_t distance;
};
constexpr CaseRange kCapitals[] = {
    {u'A', u'Z', 0x20},      // Latin
    {0x0391, 0x03A9, 0x20},  // Greek
    {0x0400, 0x040F, 0x50},  // Cyrillic
    {0x0410, 0x042F, 0x20},  // Cyrillic
    {0x04AE, 0x04AE, 1},     // Cyrillic straight U
};

char16_t SmallLetter(char16_t c) {
  for (const auto& [first, last, distance] : kCapitals) {
    if (c >= first && c <= last) return static_cast<char16_t>(c + distance);
  }
  return c;
}

char16_t CapitalLetter(char16_t c) {
  for (const auto& [first, last, distance] : kCapitals) {
    const int capital = c - distance;
    if (capital >= first && capital <= last) return static_cast<char16_t>(capital);
  }
  return c;
}

char16_t InCase(char16_t c, Case letters) {
  if (letters == Case::Small) return SmallLetter(c);
  return letters == Case::Capital ? CapitalLetter(c) : c;
}

char16_t Replaced(char16_t c, const Replacement& replacement) {
  const std::size_t place = replacement.from.find(c);
  return place == replacement.from.npos ? c : replacement.to[place];
}

char16_t WithoutAccent(char16_t c) {
  if (richtext::IsAscii(c)) return c;
  if (c >= 0xFF01 && c <= 0xFF5E) return static_cast<char16_t>(c - 0xFF01 + u'!');  // full width
  if (c >= kFirstAccented && c <= std::rbegin(kAccentedGreek)->last) {
    const auto isIn = [c](const AccentedGroup& group) { return c <= group.last; };
    return std::find_if(std::begin(kAccentedGreek), std::end(kAccentedGreek), isIn)->letter;
  }
  for (const auto& [from, to] : kUnaccented) {
    if (from.find(c) != from.npos) return to;
  }
  return c;
}

bool IsBlank(char16_t c) {
  return c == u' ' || c == 0x00A0 || c == 0x1680 || (c >= 0x2000 && c <= 0x200A) || c == 0x202F ||
         c == 0x205F || c == 0x3000;
}

bool IsCombiningAccent(char16_t c) {
  return (c >= 0x0300 && c <= 0x036F) || (c >= 0x0483 && c <= 0x0487);
}

bool HasNoWidth(char16_t c) {
  return !IsShowable({&c, 1}) || c == 0x200C || c == 0x200D || IsCombiningAccent(c);
}

// Letters without accents, and one blank for several; none at the ends.
std::u16string PlainLetters(std::u16string_view text) {
  std::u16string plain;
  bool isBehindBlank = false;
  for (const char16_t c : text) {
    if (IsBlank(c)) {
      isBehindBlank = true;
    } else if (!HasNoWidth(c)) {
      if (isBehindBlank && !plain.empty()) plain += u' ';
      isBehindBlank = false;
      plain += WithoutAccent(c);
    }
  }
  return plain;
}

void JoinRn(std::u16string& text) {
  for (std::size_t at = 0; (at = text.find(u"rn", at)) != text.npos; ++at)
    text.replace(at, 2, u"m");
}

// What is left of letters when those that look the same are one.
std::u16string Shapes(std::u16string letters, Case compared) {
  for (char16_t& c : letters) {
    c = InCase(c, compared);
    for (const Replacement& replacement : kSameShape) c = Replaced(c, replacement);
    if (compared == Case::AsWritten) c = Replaced(c, kSameStroke);
    c = SmallLetter(c);
  }
  if (compared == Case::AsWritten) JoinRn(letters);
  return letters;
}

}  // namespace

bool ReadAlike(std::u16string_view one, std::u16string_view other) {
  const std::u16string first = PlainLetters(one);
  const std::u16string second = PlainLetters(other);
  if (first.empty()) return false;
  const auto lookAlike = [&](Case compared) {
    return Shapes(first, compared) == Shapes(second, compared);
  };
  return lookAlike(Case::AsWritten) || lookAlike(Case::Small) || lookAlike(Case::Capital);
}

ReadName::ReadName(std::u16string_view name) {
  const std::u16string letters = PlainLetters(name);
  shapes_ = {Shapes(letters, Case::AsWritten), Shapes(letters, Case::Small),
             Shapes(letters, Case::Capital)};
}

bool ReadName::ReadsLike(const ReadName& other) const {
  if (shapes_.front().empty()) return false;
  for (std::size_t i = 0; i < shapes_.size(); ++i) {
    if (shapes_[i] == other.shapes_[i]) return true;
  }
  return false;
}

bool MayReadAsLatin(std::u16string_view text) {
  const std::u16string plain = PlainLetters(text);
  const auto isLatin = [&](Case compared) {
    const std::u16string shapes = Shapes(plain, compared);
    return std::all_of(shapes.begin(), shapes.end(),
                       [](char16_t c) { return richtext::IsAscii(c); });
  };
  return isLatin(Case::AsWritten) || isLatin(Case::Small) || isLatin(Case::Capital);
}

}  // namespace verlume
