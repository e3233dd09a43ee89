#include "connection/port_number.h"

#include <limits>
#include <optional>

#include "platform/run_time_failure.h"
#include "shell/trim.h"

namespace verlume {
namespace {

template <class Integer>
Integer Narrow(std::int64_t value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) {
    throw RunTimeFailure(FailureNumber::Overflow);
  }
  return static_cast<Integer>(value);
}

// None when the text is not a whole number.
std::optional<std::int32_t> WholeNumber(std::u16string_view text) {
  const bool isNegative = text.starts_with(u'-');
  if (isNegative || text.starts_with(u'+')) text.remove_prefix(1);
  if (text.empty() || text.find_first_not_of(u"0123456789") != text.npos) return std::nullopt;
  std::int64_t value = 0;
  for (const char16_t digit : text) {
    value = value * 10 + (digit - u'0');
    // Further digits only make it larger; stopping here avoids an overflow of `value`.
    if (value > std::numeric_limits<std::uint32_t>::max()) break;
  }
  return Narrow<std::int32_t>(isNegative ? -value : value);
}

}  // namespace

bool IsPortNumber(std::u16string_view text, std::int32_t min, std::int32_t max) {
  const std::optional<std::int32_t> number = WholeNumber(Trim(text));
  return number && *number >= min && *number <= max;
}

std::int16_t PortNumberOf(std::u16string_view text) {
  return Narrow<std::int16_t>(WholeNumber(Trim(text)).value_or(0));
}

}  // namespace verlume
