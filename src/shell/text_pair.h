// Texts in both languages; the language is chosen when the text is shown.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace verlume {

// A text that has been filled in, in both languages.
struct FilledPair {
  std::u16string english;
  std::u16string greek;

  const std::u16string& In(bool isGreek) const { return isGreek ? greek : english; }
};

struct TextPair {
  std::u16string_view english;
  std::u16string_view greek;

  constexpr std::u16string_view In(bool isGreek) const { return isGreek ? greek : english; }

  // The text with "%1", "%2"... replaced by the values. A "%1" inside a value stays as it is.
  std::u16string Fill(bool isGreek, std::initializer_list<std::u16string_view> values) const;
  FilledPair FillBoth(std::initializer_list<std::u16string_view> values) const {
    return {Fill(false, values), Fill(true, values)};
  }
};

// A whole number in decimal.
std::u16string DecimalText(long long number);

}  // namespace verlume
