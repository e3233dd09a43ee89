#include "stream/arrival_queue.h"

#include <gtest/gtest.h>

namespace verlume::stream {
namespace {

std::u16string TakenFrom(ArrivalQueue& queue) {
  const auto taken = queue.Take();
  return taken ? taken->arrival : u"(nothing)";
}

bool TakeMakesRoom(ArrivalQueue& queue) {
  const auto taken = queue.Take();
  return taken && taken->madeRoom;
}

TEST(ArrivalQueue, ArrivalsComeOutInOrder) {
  ArrivalQueue queue;
  queue.Add(u"one");
  queue.Add(u"two");
  EXPECT_EQ(TakenFrom(queue), u"one");
  EXPECT_EQ(TakenFrom(queue), u"two");
  EXPECT_FALSE(queue.Take());
}

TEST(ArrivalQueue, AddTellsWhetherTheQueueWasEmpty) {
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

TEST(ArrivalQueue, IsFullFromItsLimitOn) {
  ArrivalQueue queue;
  queue.Add(std::u16string(ArrivalQueue::kLimit - 1, u'x'));
  EXPECT_FALSE(queue.IsFull());
  queue.Add(u"y");
  EXPECT_TRUE(queue.IsFull());
  queue.Take();
  EXPECT_FALSE(queue.IsFull());
}

TEST(ArrivalQueue, OnlyTheTakeThatEndsFullnessMakesRoom) {
  ArrivalQueue queue(4);
  for (const char16_t* arrival : {u"aa", u"bb", u"cc"}) queue.Add(arrival);
  EXPECT_FALSE(TakeMakesRoom(queue)) << "four of six characters are left";
  EXPECT_TRUE(TakeMakesRoom(queue));
  EXPECT_FALSE(TakeMakesRoom(queue)) << "it was not full any more";
  EXPECT_FALSE(TakeMakesRoom(queue)) << "it is empty";
}

// The reader fills the queue and stops after the other thread has found room in it, and before that
// thread takes.
TEST(ArrivalQueue, ATakeTellsOfAQueueThatFilledUpJustBeforeIt) {
  ArrivalQueue queue(2);
  queue.Add(u"a");
  ASSERT_FALSE(queue.IsFull());
  queue.Add(u"b");
  ASSERT_TRUE(queue.IsFull());
  EXPECT_TRUE(TakeMakesRoom(queue));
}

TEST(ArrivalQueue, IsOverWhenItIsEndedAndEmpty) {
  ArrivalQueue queue;
  queue.Add(u"last");
  EXPECT_FALSE(queue.IsOver());
  queue.End();
  EXPECT_FALSE(queue.IsOver());
  queue.Take();
  EXPECT_TRUE(queue.IsOver());
}

}  // namespace
}  // namespace verlume::stream
