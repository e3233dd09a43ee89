#include "spelling/words.h"

#include <algorithm>
#include <utility>

namespace verlume::spelling {
namespace {

enum class Kind { Latin, Greek, Accent, Apostrophe, Other, Mark, Blank };

constexpr bool IsWithin(char16_t c, char16_t first, char16_t last) {
  return first <= c && c <= last;
}

constexpr bool IsAsciiLetter(char16_t c) {
  return IsWithin(c | 0x20, u'a', u'z');
}

// U+037E, U+0384, U+0385 and U+0387 stand among the Greek letters and are none.
constexpr bool IsGreekLetter(char16_t c) {
  const bool isSign = c == 0x037E || c == 0x0384 || c == 0x0385 || c == 0x0387;
  return IsWithin(c, 0x0370, 0x03FF) && !isSign;
}

constexpr bool IsLatinLetter(char16_t c) {
  return IsAsciiLetter(c) || (IsWithin(c, 0x00C0, 0x024F) && c != 0x00D7 && c != 0x00F7);
}

Kind KindOf(char16_t c) {
  if (c <= u' ' || c == 0x00A0 || IsWithin(c, 0x2000, 0x200A) || c == 0x2028 || c == 0x2029) {
    return Kind::Blank;
  }
  if (c == u'\'' || c == 0x2019 || c == 0x02BC) return Kind::Apostrophe;
  if (IsLatinLetter(c)) return Kind::Latin;
  if (IsGreekLetter(c)) return Kind::Greek;
  if (IsWithin(c, 0x0300, 0x036F)) return Kind::Accent;
  const bool isMark = c < 0x00C0 || c == 0x00D7 || c == 0x00F7 || IsWithin(c, 0x0370, 0x0387) ||
                      IsWithin(c, 0x2010, 0x2BFF) || IsWithin(c, 0x3000, 0x303F);
  return isMark ? Kind::Mark : Kind::Other;
}

bool IsLetter(Kind kind) {
  return kind == Kind::Latin || kind == Kind::Greek || kind == Kind::Accent || kind == Kind::Other;
}

bool IsCapital(char16_t c) {
  return IsWithin(c, u'A', u'Z') || (IsWithin(c, 0x00C0, 0x00DE) && c != 0x00D7) ||
         IsWithin(c, 0x0386, 0x038F) || IsWithin(c, 0x0391, 0x03AB);
}

// What stands between two blanks is no prose with one of these in it: "1st", "a@b", "$l", "C:\x".
bool HoldsSignOfAddress(std::u16string_view token) {
  return std::ranges::any_of(token, [](char16_t c) {
    constexpr std::u16string_view kSigns = u"0123456789@/\\_#$%&=+<>|~^";
    return kSigns.find(c) != kSigns.npos;
  });
}

// A full stop or a colon between two letters, as in "example.org", "e.g." and "a:b".
bool HoldsInnerStop(std::u16string_view token) {
  for (std::size_t i = 1; i + 1 < token.size(); ++i) {
    if (token[i] != u'.' && token[i] != u':') continue;
    if (IsLetter(KindOf(token[i - 1])) && IsLetter(KindOf(token[i + 1]))) return true;
  }
  return false;
}

class Words {
 public:
  explicit Words(std::u16string_view text) : text_(text) {}

  std::vector<Word> Find() {
    for (std::size_t i = 0; i < text_.size();) {
      const std::size_t end = EndOf(i, [](Kind kind) { return kind != Kind::Blank; });
      const std::u16string_view token = text_.substr(i, end - i);
      if (!HoldsSignOfAddress(token) && !HoldsInnerStop(token)) FindIn(i, end);
      i = end + 1;
    }
    return std::move(found_);
  }

 private:
  template <class Condition>
  std::size_t EndOf(std::size_t start, Condition holds) const {
    while (start < text_.size() && holds(KindOf(text_[start]))) ++start;
    return start;
  }
  Kind At(std::size_t place) const {
    return place < text_.size() ? KindOf(text_[place]) : Kind::Blank;
  }

  void FindIn(std::size_t start, std::size_t end) {
    while (start < end) {
      if (!IsLetter(At(start))) {
        ++start;
        continue;
      }
      std::size_t behind = EndOf(start, IsLetter);
      if (At(start) == Kind::Latin) behind = EndOfContraction(behind);
      const bool isCut = At(start) == Kind::Greek && At(behind) == Kind::Apostrophe;
      if (!isCut) Add(start, behind);
      start = behind;
    }
  }

  // "don't" is one word.
  std::size_t EndOfContraction(std::size_t end) const {
    while (At(end) == Kind::Apostrophe && At(end + 1) == Kind::Latin) {
      end = EndOf(end + 1, IsLetter);
    }
    return end;
  }

  void Add(std::size_t start, std::size_t end) {
    const std::u16string_view word = text_.substr(start, end - start);
    if (word.size() < 2 || word.size() > kLongestWord) return;
    const auto has = [word](Kind kind) {
      return std::ranges::any_of(word, [kind](char16_t c) { return KindOf(c) == kind; });
    };
    const bool isGreek = has(Kind::Greek);
    if (has(Kind::Other) || isGreek == has(Kind::Latin)) return;
    const auto isSmall = [](char16_t c) {
      const Kind kind = KindOf(c);
      return (kind == Kind::Latin || kind == Kind::Greek) && !IsCapital(c);
    };
    if (std::ranges::none_of(word, isSmall)) return;
    found_.push_back({start, word.size(), isGreek ? Script::Greek : Script::Latin});
  }

  std::u16string_view text_;
  std::vector<Word> found_;
};

// Whether the word is the pattern, each of whose places has two spellings.
bool IsSpelt(std::u16string_view word, std::u16string_view small, std::u16string_view capital) {
  if (word.size() != small.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] != small[i] && word[i] != capital[i]) return false;
  }
  return true;
}

}  // namespace

std::vector<Word> WordsOf(std::u16string_view text) {
  return Words(text).Find();
}

std::size_t StartOfWords(std::u16string_view line) {
  if (!line.starts_with(u'/')) return 0;
  const std::u16string_view word = line.substr(0, line.find(u' '));
  const bool isAction = IsSpelt(word, u"/me", u"/ME") || IsSpelt(word, u"/εγώ", u"/ΕΓΏ");
  return isAction ? word.size() : line.size();
}

}  // namespace verlume::spelling
