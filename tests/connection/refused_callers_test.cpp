#include "connection/refused_callers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace verlume {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char16_t* kAddress = u"203.0.113.5";

class RefusedCallersTest : public testing::Test {
 protected:
  void RefuseAt(std::initializer_list<RefusedCallers::Seconds> times,
                const std::u16string& address = kAddress) {
    for (const auto time : times) callers.Refuse(address, time);
  }
  bool IsTurnedAway(RefusedCallers::Seconds now) { return callers.IsTurnedAway(kAddress, now); }

  RefusedCallers callers;
};

TEST_F(RefusedCallersTest, TwoRefusalsAreNotEnough) {
  RefuseAt({0s, 1s});
  EXPECT_FALSE(IsTurnedAway(2s));
}

TEST_F(RefusedCallersTest, ThreeWithinAMinuteAre) {
  RefuseAt({100s, 130s, 160s});
  EXPECT_TRUE(IsTurnedAway(160s));
}

TEST_F(RefusedCallersTest, ThreeInMoreThanAMinuteAreNot) {
  RefuseAt({100s, 130s, 161s});
  EXPECT_FALSE(IsTurnedAway(161s));
}

TEST_F(RefusedCallersTest, TheLastThreeCount) {
  RefuseAt({0s, 100s, 130s, 160s});
  EXPECT_TRUE(IsTurnedAway(160s));
}

TEST_F(RefusedCallersTest, ItLastsTenMinutes) {
  RefuseAt({0s, 0s, 60s});
  EXPECT_TRUE(IsTurnedAway(659s));
  EXPECT_FALSE(IsTurnedAway(660s));
}

TEST_F(RefusedCallersTest, AfterTenMinutesOneRefusalIsNotEnoughAgain) {
  RefuseAt({0s, 0s, 0s, 600s});
  EXPECT_FALSE(IsTurnedAway(600s));
}

TEST_F(RefusedCallersTest, EachAddressCountsByItself) {
  RefuseAt({0s, 0s}, u"203.0.113.6");
  RefuseAt({0s});
  EXPECT_THAT(callers.TurnedAway(0s), IsEmpty());
  RefuseAt({1s, 1s});
  EXPECT_THAT(callers.TurnedAway(1s), ElementsAre(kAddress));
}

TEST_F(RefusedCallersTest, ThisComputerItselfNeverCounts) {
  for (const auto* own : {u"127.0.0.1", u"127.1.2.3", u"::1"}) {
    RefuseAt({0s, 0s, 0s}, own);
    EXPECT_FALSE(callers.IsTurnedAway(own, 0s));
  }
  EXPECT_THAT(callers.TurnedAway(0s), IsEmpty());
}

TEST_F(RefusedCallersTest, ClearingForgetsThemAll) {
  RefuseAt({0s, 0s, 0s});
  callers.Clear();
  EXPECT_FALSE(IsTurnedAway(0s));
}

}  // namespace
}  // namespace verlume
