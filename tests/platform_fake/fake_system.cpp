#include "platform_fake/fake_system.h"

#include <array>

namespace verlume::fake {
namespace {

constexpr char16_t UpperLetter(char16_t c) {
  constexpr std::u16string_view kLower = u"άέήίόύώϊϋς";
  constexpr std::u16string_view kUpper = u"ΆΈΉΊΌΎΏΪΫΣ";
  if (const auto index = kLower.find(c); index != kLower.npos) return kUpper[index];
  const bool isLower = (c >= u'a' && c <= u'z') || (c >= u'α' && c <= u'ω');
  return isLower ? static_cast<char16_t>(c - 32) : c;
}

constexpr char16_t BaseOf(char16_t c) {
  constexpr std::u16string_view kAccented = u"ΆΈΉΊΌΎΏΪΫÉé";
  constexpr std::u16string_view kPlain = u"ΑΕΗΙΟΥΩΙΥEE";
  if (c >= u'\u0300' && c <= u'\u036F') return 0;
  const char16_t upper = UpperLetter(c);
  const auto index = kAccented.find(upper);
  return index == kAccented.npos ? upper : kPlain[index];
}

// The letters that have another case or an accent stand before this; completions ask for them with
// every key.
constexpr char16_t kLettersEnd = 0x0400;

struct Letters {
  std::array<char16_t, kLettersEnd> upper{};
  std::array<char16_t, kLettersEnd> base{};
};

constexpr Letters MakeLetters() {
  Letters letters;
  for (char16_t c = 0; c < kLettersEnd; ++c) {
    letters.upper[c] = UpperLetter(c);
    letters.base[c] = BaseOf(c);
  }
  return letters;
}

constexpr Letters kLetters = MakeLetters();

}  // namespace

std::u16string FakeLocale::UpperCase(std::u16string_view text) const {
  std::u16string upper(text);
  for (char16_t& c : upper) {
    if (c < kLettersEnd) c = kLetters.upper[c];
  }
  return upper;
}

char16_t FakeLocale::BaseLetter(char16_t c) const {
  return c < kLettersEnd ? kLetters.base[c] : c;
}

}  // namespace verlume::fake
