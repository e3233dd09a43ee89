#include "shell/conversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/run_time_failure.h"
#include "shell/text_pair.h"
#include "shell/trim.h"

namespace verlume {
namespace {

constexpr std::u16string_view kBlanks = u" \t\r\n";

bool IsWord(std::u16string_view text, std::u16string_view lowerCaseWord) {
  return std::equal(text.begin(), text.end(), lowerCaseWord.begin(), lowerCaseWord.end(),
                    [](char16_t c, char16_t lower) { return c == lower || c + 32 == lower; });
}

struct ParsedNumber {
  double value = 0;
  std::size_t length = 0;  // of the text that makes up the number; 0 for none
  bool tooLarge = false;
};

ParsedNumber ParseNumber(std::u16string_view text) {
  // Cut to these characters: the standard parser would also accept "inf" and "nan".
  const std::size_t end = std::min(text.find_first_not_of(u"+-.0123456789eE"), text.size());
  const std::string ascii(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end));
  const std::size_t plus = ascii.starts_with('+') && !ascii.starts_with("+-") ? 1 : 0;
  ParsedNumber parsed;
  const char* const first = ascii.data() + plus;
  const auto [last, error] = std::from_chars(first, ascii.data() + ascii.size(), parsed.value);
  if (error == std::errc::invalid_argument) return {};
  parsed.length = static_cast<std::size_t>(last - ascii.data());
  parsed.tooLarge = error == std::errc::result_out_of_range;
  return parsed;
}

}  // namespace

bool BooleanOf(std::u16string_view text) {
  const std::u16string_view word = Trim(text, kBlanks);
  if (IsWord(word, u"true")) return true;
  if (IsWord(word, u"false")) return false;
  return NumberOf(word) != 0;
}

double NumberOf(std::u16string_view text) {
  const std::u16string_view number = Trim(text, kBlanks);
  const ParsedNumber parsed = ParseNumber(number);
  if (parsed.length == 0 || parsed.length != number.size()) {
    throw RunTimeFailure(FailureNumber::TypeMismatch);
  }
  if (parsed.tooLarge) throw RunTimeFailure(FailureNumber::Overflow);
  return parsed.value;
}

std::int32_t IntegerOf(std::u16string_view text) {
  const double rounded = std::nearbyint(NumberOf(text));
  using Limits = std::numeric_limits<std::int32_t>;
  if (rounded < Limits::min() || rounded > Limits::max()) {
    throw RunTimeFailure(FailureNumber::Overflow);
  }
  return static_cast<std::int32_t>(rounded);
}

double NumericPrefixOf(std::u16string_view text) {
  const ParsedNumber parsed = ParseNumber(Trim(text, kBlanks));
  return parsed.tooLarge ? 0 : parsed.value;
}

std::u16string BooleanText(bool value) {
  return value ? u"True" : u"False";
}

std::u16string NumberText(double value) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  return {digits, end};
}

std::u16string ZeroPaddedText(long long number, std::size_t width) {
  std::u16string digits = DecimalText(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), u'0');
  return digits;
}

}  // namespace verlume
