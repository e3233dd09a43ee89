#include "shell/text_pair.h"

#include <charconv>

namespace verlume {

std::u16string TextPair::Fill(bool isGreek,
                              std::initializer_list<std::u16string_view> values) const {
  const std::u16string_view pattern = In(isGreek);
  std::u16string filled;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const std::size_t index =
        pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1] - u'1' : values.size();
    if (index < values.size()) {
      filled += values.begin()[index];
      ++i;
    } else {
      filled += pattern[i];
    }
  }
  return filled;
}

std::u16string DecimalText(long long number) {
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  return {digits, end};
}

}  // namespace verlume
