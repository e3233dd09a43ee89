#include "shell/line_burst.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

TEST(LineBurstTest, SlowLinesAreToldOfOneByOne) {
  LineBurst burst;
  for (int line = 0; line < 3; ++line) {
    EXPECT_TRUE(burst.Add());
    EXPECT_EQ(burst.Tick(), 0u);
  }
}

TEST(LineBurstTest, OfManyLinesTheFirstIsToldOfAndThenTheirNumber) {
  LineBurst burst;
  EXPECT_TRUE(burst.Add());
  for (int line = 0; line < 12; ++line) EXPECT_FALSE(burst.Add());
  EXPECT_EQ(burst.Tick(), 12u);
  EXPECT_EQ(burst.Tick(), 0u);
}

TEST(LineBurstTest, TheSecondAfterANumberIsCountedToo) {
  LineBurst burst;
  burst.Add();
  burst.Add();
  EXPECT_EQ(burst.Tick(), 1u);
  EXPECT_FALSE(burst.Add());
  EXPECT_EQ(burst.Tick(), 1u);
  EXPECT_EQ(burst.Tick(), 0u);
  EXPECT_TRUE(burst.Add());
}

}  // namespace
}  // namespace verlume
