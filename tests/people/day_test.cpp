#include "people/day.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

TEST(DayTest, ADayIsWrittenAndReadAsInFiles) {
  EXPECT_EQ(DayText({2026, 3, 7}), u"2026-03-07");
  EXPECT_EQ(DayIn(u"2026-03-07"), (Day{2026, 3, 7}));
  for (const char16_t* text :
       {u"", u"2026-3-7", u"2026-13-01", u"2026-00-01", u"2026-01-00", u"2026-01-32", u"0000-01-01",
        u"2026/01/01", u"2026-01-0x", u"2026-01-011"}) {
    EXPECT_EQ(DayIn(text), std::nullopt);
  }
}

TEST(DayTest, InWordsTheMonthHasItsNameInTheGenitive) {
  EXPECT_EQ(DayInWords({2026, 11, 3}, false), u"3 November 2026");
  EXPECT_EQ(DayInWords({2026, 11, 3}, true), u"3 Νοεμβρίου 2026");
  EXPECT_EQ(DayInWords({2027, 5, 31}, true), u"31 Μαΐου 2027");
}

}  // namespace
}  // namespace verlume
