#include "network/link_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace verlume::network {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

Frame FrameOf(std::uint8_t name, std::size_t size = 1) {
  return Frame(size, name);
}

// The frames as a string of their first bytes.
std::vector<int> Names(const std::vector<Frame>& frames) {
  std::vector<int> names;
  for (const Frame& frame : frames) names.push_back(frame.front());
  return names;
}

// Sends `count` frames, one per millisecond; returns the times of those that are delivered.
std::map<int, Time> Deliveries(LinkModel link, int count) {
  for (int i = 0; i < count; ++i) link.Add(FrameOf(static_cast<std::uint8_t>(i)), i * 1ms);
  std::map<int, Time> deliveries;
  while (const std::optional<Time> next = link.NextDelivery()) {
    for (const int name : Names(link.TakeDue(*next))) deliveries[name] = *next;
  }
  return deliveries;
}

TEST(LinkModel, APerfectLinkDeliversAtOnceAndInOrder) {
  LinkModel link({}, 1);
  EXPECT_EQ(link.NextDelivery(), std::nullopt);
  link.Add(FrameOf(1), 5ms);
  link.Add(FrameOf(2), 5ms);
  EXPECT_EQ(link.NextDelivery(), 5ms);
  EXPECT_THAT(link.TakeDue(4ms), IsEmpty());
  EXPECT_THAT(Names(link.TakeDue(5ms)), ElementsAre(1, 2));
  EXPECT_EQ(link.NextDelivery(), std::nullopt) << "each frame comes once";
}

TEST(LinkModel, FramesArriveAsTheyWereSent) {
  LinkModel link({.delay = 10ms}, 1);
  const Frame frame = {1, 2, 3, 0, 255};
  link.Add(frame, 0ms);
  EXPECT_THAT(link.TakeDue(9999us), IsEmpty());
  EXPECT_THAT(link.TakeDue(10ms), ElementsAre(frame));
}

TEST(LinkModel, JitterStaysWithinItsBoundsAndChangesTheOrder) {
  const auto deliveries = Deliveries({{.delay = 200ms, .jitter = 50ms}, 7}, 250);
  ASSERT_EQ(deliveries.size(), 250u);
  Time least = 1s;
  Time most{0};
  bool someOvertake = false;
  Time before{0};
  for (const auto& [name, time] : deliveries) {
    least = std::min(least, time - name * 1ms);
    most = std::max(most, time - name * 1ms);
    someOvertake = someOvertake || time < before;
    before = time;
  }
  EXPECT_GE(least, 150ms);
  EXPECT_LT(least, 155ms);
  EXPECT_LE(most, 250ms);
  EXPECT_GT(most, 245ms);
  EXPECT_TRUE(someOvertake);
}

TEST(LinkModel, LosesAboutTheShareItIsGiven) {
  LinkModel link({.loss = 0.05}, 3);
  for (int i = 0; i < 10'000; ++i) link.Add(FrameOf(0), 0ms);
  EXPECT_EQ(link.Added(), 10'000);
  EXPECT_GT(link.Lost(), 400);
  EXPECT_LT(link.Lost(), 600);
  EXPECT_EQ(static_cast<std::int64_t>(link.TakeDue(0ms).size()), link.Added() - link.Lost());
}

TEST(LinkModel, TheSameSeedGivesTheSameDeliveriesAndAnotherSeedOthers) {
  const LinkQuality quality = {.delay = 200ms, .jitter = 50ms, .loss = 0.2};
  EXPECT_EQ(Deliveries({quality, 11}, 200), Deliveries({quality, 11}, 200));
  EXPECT_NE(Deliveries({quality, 11}, 200), Deliveries({quality, 12}, 200));
}

TEST(LinkModel, ALineOfLimitedSpeedSendsOneFrameAfterTheOther) {
  // 7000 bytes a second.
  LinkModel link({.delay = 10ms, .bitsPerSecond = 56'000, .queueLimit = 10'000}, 1);
  link.Add(FrameOf(1, 1400), 0ms);
  link.Add(FrameOf(2, 700), 0ms);
  EXPECT_EQ(link.NextDelivery(), 210ms);
  EXPECT_THAT(Names(link.TakeDue(210ms)), ElementsAre(1));
  EXPECT_EQ(link.NextDelivery(), 310ms);
  EXPECT_THAT(Names(link.TakeDue(310ms)), ElementsAre(2));
  link.Add(FrameOf(3, 70), 1s);
  EXPECT_EQ(link.NextDelivery(), 1020ms) << "a line that rested owes nothing";
}

TEST(LinkModel, FramesThatDoNotFitIntoTheQueueAreLost) {
  LinkModel link({.bitsPerSecond = 56'000, .queueLimit = 3000}, 1);
  for (int i = 0; i < 4; ++i) link.Add(FrameOf(static_cast<std::uint8_t>(i), 1000), 0ms);
  EXPECT_EQ(link.Lost(), 1);
  link.Add(FrameOf(4, 1000), 200ms);
  EXPECT_EQ(link.Lost(), 1) << "there is room again";
  EXPECT_THAT(Names(link.TakeDue(1s)), ElementsAre(0, 1, 2, 4));
}

TEST(LinkModel, AStallDelaysEverythingAndLosesNothing) {
  LinkModel link({.delay = 10ms}, 1);
  link.Add(FrameOf(1), 0ms);
  link.StallUntil(5s);
  link.Add(FrameOf(2), 20ms);
  EXPECT_THAT(link.TakeDue(4999ms), IsEmpty());
  EXPECT_EQ(link.NextDelivery(), 5s);
  EXPECT_THAT(Names(link.TakeDue(5s)), ElementsAre(1, 2));
  link.Add(FrameOf(3), 6s);
  EXPECT_EQ(link.NextDelivery(), 6010ms);
}

TEST(LinkModel, ACutLosesTheFramesUnderWayAndAllLaterOnes) {
  LinkModel link({.delay = 10ms}, 1);
  link.Add(FrameOf(1), 0ms);
  link.Cut();
  link.Add(FrameOf(2), 1ms);
  EXPECT_EQ(link.NextDelivery(), std::nullopt);
  EXPECT_THAT(link.TakeDue(1s), IsEmpty());
  EXPECT_EQ(link.Lost(), 2);
}

}  // namespace
}  // namespace verlume::network
