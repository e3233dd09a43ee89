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

}  // namespace verlume::fake
