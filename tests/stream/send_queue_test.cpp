#include "stream/send_queue.h"

#include <gtest/gtest.h>

namespace verlume::stream {
namespace {

using namespace std::chrono_literals;
using Bytes = std::optional<std::string>;

constexpr TimePoint kStart;
constexpr auto kRead = SendQueue::kReadingTime;

class SendQueueTest : public testing::Test {
 protected:
  void Add(const char* text, TextKind kind = TextKind::Line) { queue.Add({text, kind}); }
  SendQueue queue;
};

TEST_F(SendQueueTest, TheFirstTextIsSentAtOnce) {
  Add("one");
  EXPECT_EQ(queue.Take(kStart), Bytes("one"));
}

TEST_F(SendQueueTest, ATextWaitsUntilThoseBeforeItAreAcknowledged) {
  Add("one");
  Add("two");
  queue.Take(kStart);
  EXPECT_EQ(queue.Take(kStart + 1h), std::nullopt);
}

TEST_F(SendQueueTest, ThePeerGetsTimeToReadBeforeTheNextText) {
  Add("one");
  Add("two");
  queue.Take(kStart);
  queue.Acknowledge(kStart + 100ms);
  EXPECT_EQ(queue.Take(kStart + 100ms), std::nullopt);
  EXPECT_EQ(queue.Take(kStart + 100ms + kRead - 1ms), std::nullopt);
  EXPECT_EQ(queue.Take(kStart + 100ms + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, ThePeerGetsThatTimeEvenWhenTheQueueWasEmpty) {
  Add("one");
  queue.Take(kStart);
  queue.Acknowledge(kStart + 100ms);
  Add("two");
  EXPECT_EQ(queue.Take(kStart + 101ms), std::nullopt);
  EXPECT_EQ(queue.Take(kStart + 100ms + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, AcknowledgingAgainDoesNotExtendThatTime) {
  Add("one");
  Add("two");
  queue.Take(kStart);
  queue.Acknowledge(kStart + 100ms);
  queue.Acknowledge(kStart + 100ms + kRead - 1ms);
  EXPECT_EQ(queue.Take(kStart + 100ms + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, TextsAreSentInOrder) {
  for (const char* text : {"a", "b", "c"}) Add(text);
  std::string sent;
  for (TimePoint now = kStart; !queue.IsDone(); now += kRead) {
    queue.Acknowledge(now);
    if (const Bytes text = queue.Take(now)) sent += *text;
    ASSERT_LT(now, kStart + 100 * kRead);
  }
  EXPECT_EQ(sent, "abc");
}

TEST_F(SendQueueTest, ALineWaitsUntilItIsAcknowledged) {
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  Add("one");
  Add("two");
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  queue.Take(kStart);
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  queue.Acknowledge(kStart + 100ms);
  EXPECT_EQ(queue.LinesWaiting(), 1u);
  queue.Take(kStart + 100ms + kRead);
  queue.Acknowledge(kStart + 200ms);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
}

TEST_F(SendQueueTest, SignalsAreNotCountedAsLines) {
  Add("my name", TextKind::Signal);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  EXPECT_FALSE(queue.IsDone());
  queue.Take(kStart);
  EXPECT_FALSE(queue.IsDone());
  queue.Acknowledge(kStart);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  EXPECT_TRUE(queue.IsDone());
}

TEST_F(SendQueueTest, ASignalIsNotQueuedTwiceInARow) {
  Add("answer", TextKind::Signal);
  queue.Take(kStart);
  for (int time = 0; time < 3; ++time) Add("answer", TextKind::Signal);
  Add("name", TextKind::Signal);
  Add("answer", TextKind::Signal);
  std::string sent;
  for (TimePoint now = kStart + kRead; !queue.IsDone(); now += kRead) {
    queue.Acknowledge(now - kRead);
    if (const Bytes text = queue.Take(now)) sent += *text + ' ';
    ASSERT_LT(now, kStart + 100 * kRead);
  }
  EXPECT_EQ(sent, "answer name answer ");
}

TEST_F(SendQueueTest, EqualLinesAreAllQueued) {
  Add("yes");
  Add("yes");
  EXPECT_EQ(queue.LinesWaiting(), 2u);
}

}  // namespace
}  // namespace verlume::stream
