#include "shell/date_time_text.h"

#include <gtest/gtest.h>

#include "platform_fake/fake_system.h"

namespace verlume {
namespace {

TEST(DateTimeText, PadsEveryPiece) {
  fake::FakeClock clock;
  clock.now = {2026, 3, 7, 9, 5, 30};
  EXPECT_EQ(DateText(clock), u"2026-03-07");
  EXPECT_EQ(TimeText(clock), u"09:05:30");
  EXPECT_EQ(DateTimeText(clock), u"2026-03-07_09:05:30");
}

TEST(DateTimeText, TellsHoursFromZeroToTwentyThree) {
  fake::FakeClock clock;
  clock.now = {999, 12, 31, 0, 0, 0};
  EXPECT_EQ(DateTimeText(clock), u"0999-12-31_00:00:00");
  clock.now = {2026, 12, 31, 23, 59, 59};
  EXPECT_EQ(TimeText(clock), u"23:59:59");
}

// A clock on which midnight passes between two readings.
class MidnightClock : public Clock {
 public:
  LocalTime Now() const override {
    return readings++ == 0 ? LocalTime{2026, 3, 7, 23, 59, 59} : LocalTime{2026, 3, 8, 0, 0, 0};
  }
  mutable int readings = 0;
};

TEST(DateTimeText, DateAndTimeAreOfOneMoment) {
  EXPECT_EQ(DateTimeText(MidnightClock()), u"2026-03-07_23:59:59");
  EXPECT_EQ(LongDateTimeText(MidnightClock(), fake::FakeLocale()),
            u"7 of month 3 2026 - 23 h 59 m 59 s");
}

TEST(DateTimeText, TheLongFormIsTheSystemsOwn) {
  EXPECT_EQ(LongDateTimeText(fake::FakeClock(), fake::FakeLocale()),
            u"7 of month 3 2026 - 9 h 5 m 30 s");
}

}  // namespace
}  // namespace verlume
