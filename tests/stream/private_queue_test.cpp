#include "stream/private_queue.h"

#include <gtest/gtest.h>

#include "stream/frames.h"

namespace verlume::stream {
namespace {

using Bytes = std::optional<std::string>;

class PrivateQueueTest : public testing::Test {
 protected:
  void Add(std::string text, TextKind kind = TextKind::Line) { queue.Add(std::move(text), kind); }
  static Bytes Text(std::string_view body) { return WriteFrame(FrameKind::Text, body); }
  static Bytes Part(std::string_view body) { return WriteFrame(FrameKind::TextPart, body); }

  PrivateQueue queue;
};

TEST_F(PrivateQueueTest, TextsFollowEachOtherWithoutWaiting) {
  Add("one");
  Add("two");
  EXPECT_FALSE(queue.IsEmpty());
  EXPECT_EQ(queue.TakeFrame(), Text("one"));
  EXPECT_EQ(queue.TakeFrame(), Text("two"));
  EXPECT_EQ(queue.TakeFrame(), std::nullopt);
  EXPECT_TRUE(queue.IsEmpty());
  EXPECT_FALSE(queue.IsDone());
}

TEST_F(PrivateQueueTest, ALongTextIsCutBetweenCharacters) {
  const std::string start(kLongestBody - 1, 'x');
  Add(start + "\xCE\xB1" + "end");
  Add("next");
  EXPECT_EQ(queue.TakeFrame(), Part(start));
  EXPECT_EQ(queue.TakeFrame(), Text("\xCE\xB1"
                                    "end"));
  EXPECT_EQ(queue.TakeFrame(), Text("next"));
}

TEST_F(PrivateQueueTest, ATextThatFillsAFrameIsOneFrame) {
  Add(std::string(kLongestBody, 'x'));
  EXPECT_EQ(queue.TakeFrame(), Text(std::string(kLongestBody, 'x')));
  EXPECT_TRUE(queue.IsEmpty());
}

TEST_F(PrivateQueueTest, AnEmptyTextIsAText) {
  Add("");
  EXPECT_EQ(queue.TakeFrame(), Text(""));
  EXPECT_TRUE(queue.Acknowledge(1));
  EXPECT_TRUE(queue.IsDone());
}

TEST_F(PrivateQueueTest, LinesWaitUntilTheyAreAcknowledged) {
  Add("one");
  Add("name", TextKind::Signal);
  Add("two");
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  while (queue.TakeFrame()) {
  }
  EXPECT_EQ(queue.LinesWaiting(), 2u);
  EXPECT_TRUE(queue.Acknowledge(2));
  EXPECT_EQ(queue.LinesWaiting(), 1u);
  EXPECT_TRUE(queue.Acknowledge(2));
  EXPECT_TRUE(queue.Acknowledge(3));
  EXPECT_EQ(queue.LinesWaiting(), 0u);
  EXPECT_TRUE(queue.IsDone());
}

TEST_F(PrivateQueueTest, AcknowledgementsThatLieAreNoticed) {
  EXPECT_FALSE(queue.Acknowledge(1));
  Add("one");
  Add(std::string(kLongestBody + 1, 'x'));
  queue.TakeFrame();
  queue.TakeFrame();  // a part is no text
  EXPECT_FALSE(queue.Acknowledge(2));
  EXPECT_TRUE(queue.Acknowledge(1));
  EXPECT_FALSE(queue.Acknowledge(0));
  EXPECT_FALSE(queue.Acknowledge(~std::uint64_t{0}));
  EXPECT_EQ(queue.LinesWaiting(), 1u);
}

TEST_F(PrivateQueueTest, EqualSignalsThatWaitAreOne) {
  Add("name", TextKind::Signal);
  Add("name", TextKind::Signal);
  Add("name");
  Add("name");
  Add("name", TextKind::Signal);
  int frames = 0;
  while (queue.TakeFrame()) ++frames;
  EXPECT_EQ(frames, 4);
}

TEST_F(PrivateQueueTest, ASignalThatEqualsOneOnItsWayIsSent) {
  const std::string name(kLongestBody + 1, 'x');
  Add(name, TextKind::Signal);
  queue.TakeFrame();
  Add(name, TextKind::Signal);
  int frames = 0;
  while (queue.TakeFrame()) ++frames;
  EXPECT_EQ(frames, 3);
}

}  // namespace
}  // namespace verlume::stream
