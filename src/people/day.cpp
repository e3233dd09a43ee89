#include "people/day.h"

#include "shell/conversions.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

// In Greek in the genitive, as a date has it.
constexpr TextPair kMonths[] = {
    {u"January", u"Ιανουαρίου"},
    {u"February", u"Φεβρουαρίου"},
    {u"March", u"Μαρτίου"},
    {u"April", u"Απριλίου"},
    {u"May", u"Μαΐου"},
    {u"June", u"Ιουνίου"},
    {u"July", u"Ιουλίου"},
    {u"August", u"Αυγούστου"},
    {u"September", u"Σεπτεμβρίου"},
    {u"October", u"Οκτωβρίου"},
    {u"November", u"Νοεμβρίου"},
    {u"December", u"Δεκεμβρίου"},
};

// Negative if the text is no number.
int NumberIn(std::u16string_view digits) {
  int number = 0;
  for (const char16_t c : digits) {
    if (c < u'0' || c > u'9') return -1;
    number = number * 10 + (c - u'0');
  }
  return number;
}

}  // namespace

std::u16string DayText(const Day& day) {
  return ZeroPaddedText(day.year, 4) + u'-' + ZeroPaddedText(day.month, 2) + u'-' +
         ZeroPaddedText(day.day, 2);
}

std::optional<Day> DayIn(std::u16string_view text) {
  if (text.size() != 10 || text[4] != u'-' || text[7] != u'-') return std::nullopt;
  const Day day = {NumberIn(text.substr(0, 4)), NumberIn(text.substr(5, 2)),
                   NumberIn(text.substr(8))};
  const bool mayBe =
      day.year > 0 && day.month >= 1 && day.month <= 12 && day.day >= 1 && day.day <= 31;
  return mayBe ? std::optional(day) : std::nullopt;
}

std::u16string DayInWords(const Day& day, bool isGreek) {
  const std::size_t month = static_cast<std::size_t>(day.month - 1) % std::size(kMonths);
  std::u16string words = DecimalText(day.day) + u' ';
  words.append(kMonths[month].In(isGreek));
  return words + u' ' + DecimalText(day.year);
}

}  // namespace verlume
