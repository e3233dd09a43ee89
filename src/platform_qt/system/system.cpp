#include "platform_qt/system/system.h"

#include <QDateTime>
#include <QRegularExpression>

#include "platform_qt/convert/text.h"
#include "platform_qt/system/base_letters.h"

namespace verlume::qt {
namespace {

QDate DateOf(const LocalTime& time) {
  return QDate(time.year, time.month, time.day);
}

QTime TimeOf(const LocalTime& time) {
  return QTime(time.hour, time.minute, time.second);
}

// Removes the time zone ("t" and longer) from a time format, with brackets and blanks around it.
// Quoted text is not changed.
QString WithoutTimeZone(const QString& format) {
  static const QRegularExpression kQuotedOrZone(R"(('[^']*')|[\s(\[]*t+[)\]]*)");
  QString result;
  qsizetype end = 0;
  for (auto matches = kQuotedOrZone.globalMatch(format); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    result += format.mid(end, match.capturedStart() - end) + match.captured(1);
    end = match.capturedEnd();
  }
  return (result + format.mid(end)).trimmed();
}

}  // namespace

LocalTime QtClock::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

QtLocale::QtLocale(const QLocale& locale)
    : locale_(locale), timeFormat_(WithoutTimeZone(locale.timeFormat(QLocale::LongFormat))) {}

std::u16string QtLocale::LongDate(const LocalTime& time) const {
  return FromQt(locale_.toString(DateOf(time), QLocale::LongFormat));
}

std::u16string QtLocale::LongTime(const LocalTime& time) const {
  return FromQt(locale_.toString(TimeOf(time), timeFormat_));
}

std::u16string QtLocale::GroupSeparator() const {
  return FromQt(locale_.groupSeparator());
}

std::u16string QtLocale::UpperCase(std::u16string_view text) const {
  return FromQt(ToQt(text).toUpper());
}

char16_t QtLocale::BaseLetter(char16_t c) const {
  return BaseLetters()[c];
}

}  // namespace verlume::qt
