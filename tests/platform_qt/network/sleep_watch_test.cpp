#include "platform_qt/network/sleep_watch.h"

#include <gtest/gtest.h>

#include "platform_qt/network/network.h"
#include "platform_qt/world.h"

namespace verlume::qt {
namespace {

using namespace std::chrono_literals;

TEST(SleepWatch, TellsThatTheMachineHasSlept) {
  std::chrono::nanoseconds asleep = 1h;
  int times = 0;
  const SleepWatch watch([&times] { ++times; }, [&asleep] { return asleep; }, 5ms);
  asleep += 3s;
  EXPECT_TRUE(WaitFor([&times] { return times == 1; }));
}

TEST(SleepWatch, SaysNothingWhileTheMachineIsAwake) {
  std::chrono::nanoseconds asleep = 1h;
  int times = 0;
  int looks = 0;
  const SleepWatch watch([&times] { ++times; },
                         [&] {
                           ++looks;
                           return asleep += 300ms;  // clocks are never read at the same moment
                         },
                         1ms);
  EXPECT_TRUE(WaitFor([&looks] { return looks >= 10; }));
  EXPECT_EQ(times, 0);
}

TEST(SleepWatch, TheClocksOfThisMachineAgreeWhileItIsAwake) {
  const auto before = TimeAsleep();
  EXPECT_GE(before, 0s);
  EXPECT_LT(TimeAsleep() - before, 1s);
}

TEST(QtNetwork, SleepIsAChange) {
  std::chrono::nanoseconds asleep = 0s;
  int changes = 0;
  QtNetwork network([&asleep] { return asleep; }, 5ms);
  network.onChange = [&changes] { ++changes; };
  asleep = 10min;
  EXPECT_TRUE(WaitFor([&changes] { return changes == 1; }));
}

}  // namespace
}  // namespace verlume::qt
