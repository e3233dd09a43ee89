#include "stream/text_count.h"

#include <gtest/gtest.h>

namespace verlume::stream {
namespace {

class TextCountTest : public testing::Test {
 protected:
  void AddText(int arrivals = 1) {
    for (; arrivals > 0; --arrivals) count.AddArrival();
    count.EndText();
  }
  TextCount count;
};

TEST_F(TextCountTest, ATextIsTakenInWithItsLastArrival) {
  AddText();
  AddText(3);
  AddText();
  EXPECT_EQ(count.TextsTakenIn(), 0u);
  count.TakeIn(1);
  EXPECT_EQ(count.TextsTakenIn(), 1u);
  count.TakeIn(3);
  EXPECT_EQ(count.TextsTakenIn(), 1u);
  count.TakeIn(5);
  EXPECT_EQ(count.TextsTakenIn(), 3u);
}

TEST_F(TextCountTest, EmptyTextsAreTakenInWithWhatIsBeforeThem) {
  AddText(0);
  EXPECT_EQ(count.TextsTakenIn(), 1u);
  AddText();
  AddText(0);
  AddText(0);
  EXPECT_EQ(count.TextsTakenIn(), 1u);
  count.TakeIn(1);
  EXPECT_EQ(count.TextsTakenIn(), 4u);
}

TEST_F(TextCountTest, ATextThatIsNotOverIsNotTakenIn) {
  count.AddArrival();
  count.TakeIn(1);
  EXPECT_EQ(count.TextsTakenIn(), 0u);
  count.EndText();
  EXPECT_EQ(count.TextsTakenIn(), 1u);
}

TEST_F(TextCountTest, AllMayBeTakenInAtOnce) {
  AddText();
  AddText(2);
  count.AddArrival();
  count.TakeInAll();
  EXPECT_EQ(count.TextsTakenIn(), 2u);
}

TEST_F(TextCountTest, SoManyArrivalsMayWait) {
  for (std::uint64_t i = 0; i < TextCount::kMostWaiting; ++i) {
    EXPECT_FALSE(count.IsFull());
    AddText();
  }
  EXPECT_TRUE(count.IsFull());
  count.TakeIn(1);
  EXPECT_FALSE(count.IsFull());
}

}  // namespace
}  // namespace verlume::stream
