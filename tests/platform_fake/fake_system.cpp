#include "platform_fake/fake_system.h"

namespace verlume::fake {

std::u16string FakeLocale::UpperCase(std::u16string_view text) const {
  constexpr std::u16string_view kLower = u"άέήίόύώϊϋς";
  constexpr std::u16string_view kUpper = u"ΆΈΉΊΌΎΏΪΫΣ";
  std::u16string upper(text);
  for (char16_t& c : upper) {
    if (const auto index = kLower.find(c); index != kLower.npos) {
      c = kUpper[index];
    } else if ((c >= u'a' && c <= u'z') || (c >= u'α' && c <= u'ω')) {
      c = static_cast<char16_t>(c - 32);
    }
  }
  return upper;
}

char16_t FakeLocale::BaseLetter(char16_t c) const {
  constexpr std::u16string_view kAccented = u"ΆΈΉΊΌΎΏΪΫÉé";
  constexpr std::u16string_view kPlain = u"ΑΕΗΙΟΥΩΙΥEE";
  if (c >= u'\u0300' && c <= u'\u036F') return 0;
  const char16_t upper = UpperCase({&c, 1}).front();
  const auto index = kAccented.find(upper);
  return index == kAccented.npos ? upper : kPlain[index];
}

}  // namespace verlume::fake
