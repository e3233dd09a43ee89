// A day of the calendar, as text for files and in words for people.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

#include "platform/system.h"

namespace verlume {

struct Day {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;

  bool operator==(const Day&) const = default;
  bool operator<(const Day& other) const {
    return std::tie(year, month, day) < std::tie(other.year, other.month, other.day);
  }
};

inline Day DayOf(const LocalTime& time) {
  return {time.year, time.month, time.day};
}

// "2026-11-03"
std::u16string DayText(const Day& day);
// None if the text is not as DayText writes it, or names no day that may be.
std::optional<Day> DayIn(std::u16string_view text);

// "3 November 2026", "3 Νοεμβρίου 2026"
std::u16string DayInWords(const Day& day, bool isGreek);

}  // namespace verlume
