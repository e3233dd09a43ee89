#include "shell/date_time_text.h"

#include "shell/conversions.h"

namespace verlume {
namespace {

std::u16string DateTextOf(const LocalTime& time) {
  return ZeroPaddedText(time.year, 4) + u"-" + ZeroPaddedText(time.month, 2) + u"-" +
         ZeroPaddedText(time.day, 2);
}

std::u16string TimeTextOf(const LocalTime& time) {
  return ZeroPaddedText(time.hour, 2) + u":" + ZeroPaddedText(time.minute, 2) + u":" +
         ZeroPaddedText(time.second, 2);
}

}  // namespace

std::u16string DateText(const Clock& clock) {
  return DateTextOf(clock.Now());
}

std::u16string TimeText(const Clock& clock) {
  return TimeTextOf(clock.Now());
}

// Reads the clock only once, so that date and time belong together at midnight too.
std::u16string DateTimeText(const Clock& clock) {
  const LocalTime now = clock.Now();
  return DateTextOf(now) + u"_" + TimeTextOf(now);
}

std::u16string LongDateTimeText(const Clock& clock, const Locale& locale) {
  const LocalTime now = clock.Now();
  return locale.LongDate(now) + u" - " + locale.LongTime(now);
}

}  // namespace verlume
