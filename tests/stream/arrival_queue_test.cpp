#include "stream/arrival_queue.h"

#include <gtest/gtest.h>

#include <thread>

namespace verlume::stream {
namespace {

std::u16string Number(int i) {
  const std::string digits = std::to_string(i);
  return {digits.begin(), digits.end()};
}

TEST(ArrivalQueue, ArrivalsComeOutInTheirOrder) {
  ArrivalQueue queue;
  queue.Add(u"one");
  queue.Add(u"two");
  EXPECT_EQ(queue.Take(), u"one");
  EXPECT_EQ(queue.Take(), u"two");
  EXPECT_EQ(queue.Take(), std::nullopt);
}

TEST(ArrivalQueue, TheFirstThatWaitsIsTold) {
  ArrivalQueue queue;
  EXPECT_TRUE(queue.Add(u"one"));
  EXPECT_FALSE(queue.Add(u"two"));
  queue.Take();
  EXPECT_FALSE(queue.Add(u"three"));
  queue.Take();
  queue.Take();
  EXPECT_TRUE(queue.IsEmpty());
  EXPECT_TRUE(queue.Add(u"four"));
  EXPECT_FALSE(queue.IsEmpty());
}

TEST(ArrivalQueue, IsFullUntilEnoughIsTaken) {
  ArrivalQueue queue;
  queue.Add(std::u16string(ArrivalQueue::kLimit - 1, u'x'));
  EXPECT_FALSE(queue.IsFull());
  queue.Add(u"y");
  EXPECT_TRUE(queue.IsFull());
  queue.Take();
  EXPECT_FALSE(queue.IsFull());
}

TEST(ArrivalQueue, IsOverWhenTheLastOneIsTaken) {
  ArrivalQueue queue;
  queue.Add(u"last");
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
    for (int i = 0; i < kCount; ++i) queue.Add(Number(i));
    queue.End();
  });
  int taken = 0;
  bool inOrder = true;
  while (!queue.IsOver()) {
    const auto arrival = queue.Take();
    if (arrival) inOrder = inOrder && *arrival == Number(taken++);
  }
  reader.join();
  EXPECT_EQ(taken, kCount);
  EXPECT_TRUE(inOrder);
}

}  // namespace
}  // namespace verlume::stream
