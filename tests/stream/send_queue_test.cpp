#include "stream/send_queue.h"

#include <gtest/gtest.h>

namespace verlume::stream {
namespace {

using namespace std::chrono_literals;
using Bytes = std::optional<std::string>;

constexpr TimePoint kT0;
constexpr auto kRead = SendQueue::kReadingTime;

class SendQueueTest : public testing::Test {
 protected:
  void Add(const char* text, TextKind kind = TextKind::Line) { queue.Add({text, kind}); }
  SendQueue queue;
};

TEST_F(SendQueueTest, TheFirstTextIsSentAtOnce) {
  Add("one");
  EXPECT_EQ(queue.Take(kT0), Bytes("one"));
}

TEST_F(SendQueueTest, ATextWaitsUntilThoseBeforeItAreAcknowledged) {
  Add("one");
  Add("two");
  queue.Take(kT0);
  EXPECT_EQ(queue.Take(kT0 + 1h), std::nullopt);
}

TEST_F(SendQueueTest, ThePeerGetsTimeToReadBeforeTheNextText) {
  Add("one");
  Add("two");
  queue.Take(kT0);
  queue.Acknowledge(kT0 + 100ms);
  EXPECT_EQ(queue.Take(kT0 + 100ms), std::nullopt);
  EXPECT_EQ(queue.Take(kT0 + 100ms + kRead - 1ms), std::nullopt);
  EXPECT_EQ(queue.Take(kT0 + 100ms + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, ThePeerGetsThatTimeEvenWhenTheQueueWasEmpty) {
  Add("one");
  queue.Take(kT0);
  queue.Acknowledge(kT0 + 100ms);
  Add("two");
  EXPECT_EQ(queue.Take(kT0 + 101ms), std::nullopt);
  EXPECT_EQ(queue.Take(kT0 + 100ms + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, AcknowledgingAgainDoesNotExtendThatTime) {
  Add("one");
  Add("two");
  queue.Take(kT0);
  queue.Acknowledge(kT0 + 100ms);
  queue.Acknowledge(kT0 + 100ms + kRead - 1ms);
  EXPECT_EQ(queue.Take(kT0 + 100ms + kRead), Bytes("two"));
}

TEST_F(SendQueueTest, TextsAreSentInOrder) {
  for (const char* text : {"a", "b", "c"}) Add(text);
  std::string sent;
  for (TimePoint now = kT0; !queue.IsDone(); now += kRead) {
    queue.Acknowledge(now);
    if (const Bytes text = queue.Take(now)) sent += *text;
    ASSERT_LT(now, kT0 + 100 * kRead);
  }
  EXPECT_EQ(sent, "abc");
}

TEST_F(SendQueueTest, ALineWaitsUntilItIsAcknowledged) {
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  Add("one");
  Add("two");
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  queue.Take(kT0);
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  queue.Acknowledge(kT0 + 100ms);
  EXPECT_EQ(queue.LinesWaiting(), 1u);
  queue.Take(kT0 + 100ms + kRead);
  queue.Acknowledge(kT0 + 200ms);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
}

TEST_F(SendQueueTest, SignalsAreNotCountedAsLines) {
  Add("my name", TextKind::Signal);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  EXPECT_FALSE(queue.IsDone());
  queue.Take(kT0);
  EXPECT_FALSE(queue.IsDone());
  queue.Acknowledge(kT0);
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  EXPECT_TRUE(queue.IsDone());
}

TEST_F(SendQueueTest, ASignalIsNotQueuedTwiceInARow) {
  Add("answer", TextKind::Signal);
  queue.Take(kT0);
  for (int time = 0; time < 3; ++time) Add("answer", TextKind::Signal);
  Add("name", TextKind::Signal);
  Add("answer", TextKind::Signal);
  std::string sent;
  for (TimePoint now = kT0 + kRead; !queue.IsDone(); now += kRead) {
    queue.Acknowledge(now - kRead);
    if (const Bytes text = queue.Take(now)) sent += *text + ' ';
    ASSERT_LT(now, kT0 + 100 * kRead);
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
