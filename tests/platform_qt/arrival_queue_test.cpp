#include "platform_qt/arrival_queue.h"

#include <gtest/gtest.h>

#include <thread>

namespace verlume::qt {
namespace {

TEST(ArrivalQueue, ArrivalsComeOutInTheirOrder) {
  ArrivalQueue queue;
  queue.Add("one");
  queue.Add("two");
  EXPECT_EQ(queue.Take(), "one");
  EXPECT_EQ(queue.Take(), "two");
  EXPECT_EQ(queue.Take(), std::nullopt);
}

TEST(ArrivalQueue, TheFirstThatWaitsIsTold) {
  ArrivalQueue queue;
  EXPECT_TRUE(queue.Add("one"));
  EXPECT_FALSE(queue.Add("two"));
  queue.Take();
  EXPECT_FALSE(queue.Add("three"));
  queue.Take();
  queue.Take();
  EXPECT_TRUE(queue.IsEmpty());
  EXPECT_TRUE(queue.Add("four"));
  EXPECT_FALSE(queue.IsEmpty());
}

TEST(ArrivalQueue, IsFullUntilEnoughIsTaken) {
  ArrivalQueue queue;
  queue.Add(std::string(ArrivalQueue::kLimit - 1, 'x'));
  EXPECT_FALSE(queue.IsFull());
  queue.Add("y");
  EXPECT_TRUE(queue.IsFull());
  queue.Take();
  EXPECT_FALSE(queue.IsFull());
}

TEST(ArrivalQueue, IsOverWhenTheLastOneIsTaken) {
  ArrivalQueue queue;
  queue.Add("last");
  EXPECT_FALSE(queue.IsOver());
  queue.End();
  EXPECT_FALSE(queue.IsOver());
  queue.Take();
  EXPECT_TRUE(queue.IsOver());
}

TEST(ArrivalQueue, TwoThreadsMayUseItAtOnce) {
  constexpr int kCount = 10'000;
  ArrivalQueue queue;
  std::thread reader([&] {
    for (int i = 0; i < kCount; ++i) queue.Add(std::to_string(i));
    queue.End();
  });
  int taken = 0;
  bool inOrder = true;
  while (!queue.IsOver()) {
    const auto arrival = queue.Take();
    if (arrival) inOrder = inOrder && *arrival == std::to_string(taken++);
  }
  reader.join();
  EXPECT_EQ(taken, kCount);
  EXPECT_TRUE(inOrder);
}

}  // namespace
}  // namespace verlume::qt
