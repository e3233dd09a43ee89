#include "stream/send_queue.h"

#include <gtest/gtest.h>

namespace verlume::stream {
namespace {

using Bytes = std::optional<std::string>;

constexpr std::int64_t kRead = SendQueue::kReadingTime;

class SendQueueTest : public testing::Test {
 protected:
  void Add(const char* text, TextKind kind = TextKind::Line) { queue.Add({text, kind}); }
  SendQueue queue;
};

TEST_F(SendQueueTest, TheFirstTextLeavesAtOnce) {
  Add("one");
  EXPECT_EQ(queue.Take(5), Bytes("one"));
}

TEST_F(SendQueueTest, ATextWaitsUntilThoseBeforeItAreAcknowledged) {
  Add("one");
  Add("two");
  queue.Take(0);
  EXPECT_EQ(queue.Take(1'000'000), std::nullopt);
}

TEST_F(SendQueueTest, ThePeerGetsTheTimeToReadBeforeTheNextLeaves) {
  Add("one");
  Add("two");
  queue.Take(0);
  queue.Acknowledge(100);
  EXPECT_EQ(queue.Take(100), std::nullopt);
  EXPECT_EQ(queue.Take(100 + kRead - 1), std::nullopt);
  EXPECT_EQ(queue.Take(100 + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, ThePeerGetsThatTimeAlsoWhenNothingWaited) {
  Add("one");
  queue.Take(0);
  queue.Acknowledge(100);
  Add("two");
  EXPECT_EQ(queue.Take(101), std::nullopt);
  EXPECT_EQ(queue.Take(100 + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, AcknowledgingAgainDoesNotProlongThatTime) {
  Add("one");
  Add("two");
  queue.Take(0);
  queue.Acknowledge(100);
  queue.Acknowledge(100 + kRead - 1);
  EXPECT_EQ(queue.Take(100 + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, TextsLeaveInTheirOrder) {
  for (const char* text : {"a", "b", "c"}) Add(text);
  std::string sent;
  for (std::int64_t now = 0; !queue.IsDone(); now += kRead) {
    queue.Acknowledge(now);
    if (const Bytes text = queue.Take(now)) sent += *text;
    ASSERT_LT(now, 100 * kRead);
  }
  EXPECT_EQ(sent, "abc");
}

TEST_F(SendQueueTest, ALineWaitsUntilItIsAcknowledged) {
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  Add("one");
  Add("two");
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  queue.Take(0);
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  queue.Acknowledge(100);
  EXPECT_EQ(queue.LinesWaiting(), 1u);
  queue.Take(100 + kRead);
  queue.Acknowledge(200);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
}

TEST_F(SendQueueTest, WordsBetweenTheProgramsAreNoLines) {
  Add("my name", TextKind::Signal);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  EXPECT_FALSE(queue.IsDone());
  queue.Take(0);
  EXPECT_FALSE(queue.IsDone());
  queue.Acknowledge(0);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  EXPECT_TRUE(queue.IsDone());
}

TEST_F(SendQueueTest, ASignalIsNotRepeatedWhileItWaits) {
  Add("answer", TextKind::Signal);
  queue.Take(0);
  for (int time = 0; time < 3; ++time) Add("answer", TextKind::Signal);
  Add("name", TextKind::Signal);
  Add("answer", TextKind::Signal);
  std::string sent;
  for (std::int64_t now = kRead; !queue.IsDone(); now += kRead) {
    queue.Acknowledge(now - kRead);
    if (const Bytes text = queue.Take(now)) sent += *text + ' ';
    ASSERT_LT(now, 100 * kRead);
  }
  EXPECT_EQ(sent, "answer name answer ");
}

TEST_F(SendQueueTest, ALineMayBeRepeated) {
  Add("yes");
  Add("yes");
  EXPECT_EQ(queue.LinesWaiting(), 2u);
}

}  // namespace
}  // namespace verlume::stream
