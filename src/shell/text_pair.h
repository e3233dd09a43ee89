// A text in both languages; the language is chosen when the text is shown.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace verlume {

struct TextPair {
  std::u16string_view english;
  std::u16string_view greek;

  constexpr std::u16string_view In(bool isGreek) const { return isGreek ? greek : english; }

  // The text with "%1", "%2"... replaced by the values. A "%1" inside a value stays as it is.
  std::u16string Fill(bool isGreek, std::initializer_list<std::u16string_view> values) const;
};

// A whole number in decimal.
std::u16string DecimalText(long long number);

}  // namespace verlume
