// Whole conversations over bad links: every message is shown once, in order, and on its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <iostream>
#include <optional>

#include "network/two_machines.h"

namespace verlume::network {
namespace {

using namespace std::chrono_literals;

constexpr int kLimit = 100'000;  // ms

// A delay of 200 ms each way, give or take 50, and one frame in twenty lost.
constexpr LinkQuality kBadLink = {.delay = 200ms, .jitter = 50ms, .loss = 0.05};

class ConversationTest : public testing::Test {
 protected:
  void Connect(const LinkQuality& quality, std::size_t conversations, Talk talk = Talk::InClear) {
    machines_.emplace(quality, kSeed, talk);
    for (std::size_t i = 0; i < conversations; ++i) {
      conversations_.emplace_back(*machines_, 4000 + static_cast<int>(i));
    }
    for (Conversation& each : conversations_) {
      ASSERT_TRUE(each.Connect(TwoMachines::kBobIPv4))
          << each.Alice().Status().toStdString() << " / " << each.Bob().Status().toStdString();
    }
    time_.start();
  }

  // Each types all of its messages without a pause, so that it reads late what arrives meanwhile.
  void Start(const Play& play) {
    Play each = play;
    for (Conversation& conversation : conversations_) {
      ++each.seed;
      conversation.Start(each);
      ASSERT_TRUE(WaitUntil([&] { return conversation.HasPlayed(); }, kLimit));
    }
  }

  void ExpectAllShown() {
    EXPECT_TRUE(WaitUntil([this] { return AreOver(); }, kLimit));
    std::cout << time_.elapsed() << " ms, " << Cable().Account() << std::endl;
    for (Conversation& each : conversations_) {
      each.ExpectAllShown();
      EXPECT_TRUE(each.Alice().IsConnected() && each.Bob().IsConnected());
      EXPECT_EQ(each.Alice().Boxes(), QStringList());
      EXPECT_EQ(each.Bob().Boxes().size(), 1) << "whether to accept the call";
    }
  }

  bool AreOver() const {
    return std::all_of(conversations_.begin(), conversations_.end(),
                       [](const Conversation& each) { return each.IsOver(); });
  }
  Relay& Cable() { return machines_->Cable(); }

  static constexpr std::uint64_t kSeed = 20'260'307;

  std::optional<TwoMachines> machines_;
  std::deque<Conversation> conversations_;
  QElapsedTimer time_;
};

TEST_F(ConversationTest, EveryMessageArrivesOnItsOwnOverAPerfectLink) {
  ASSERT_NO_FATAL_FAILURE(Connect({}, 1));
  ASSERT_NO_FATAL_FAILURE(Start({.steps = 200}));
  ExpectAllShown();
}

TEST_F(ConversationTest, EveryMessageArrivesOnItsOwnOverASlowAndLossyLink) {
  ASSERT_NO_FATAL_FAILURE(Connect(kBadLink, 4));
  ASSERT_NO_FATAL_FAILURE(Start({.steps = 50}));
  ExpectAllShown();
}

TEST_F(ConversationTest, EveryMessageArrivesOnItsOwnInPrivateOverASlowAndLossyLink) {
  ASSERT_NO_FATAL_FAILURE(Connect(kBadLink, 4, Talk::InPrivate));
  ASSERT_NO_FATAL_FAILURE(Start({.steps = 50}));
  ExpectAllShown();
}

// In private nothing waits for what is before it to be read: in clear this takes 13 s.
TEST_F(ConversationTest, InPrivateLinesFollowEachOtherAtOnce) {
  ASSERT_NO_FATAL_FAILURE(
      Connect({.delay = 100ms, .jitter = 50ms, .loss = 0.05}, 1, Talk::InPrivate));
  ASSERT_NO_FATAL_FAILURE(Start({.steps = 44, .longest = 200}));
  ExpectAllShown();
  EXPECT_LT(time_.elapsed(), 6000);
}

TEST_F(ConversationTest, EveryMessageArrivesOnItsOwnOverATelephoneLine) {
  LinkQuality line = kBadLink;
  line.bitsPerSecond = 56'000;
  // A second's worth each way. With more, a retransmission is repeated only after 10 s, and one
  // that is lost ends the connection, which waits 17 s for an acknowledgement.
  line.queueLimit = 8 << 10;
  ASSERT_NO_FATAL_FAILURE(Connect(line, 1));
  ASSERT_NO_FATAL_FAILURE(Start({.steps = 16}));
  ExpectAllShown();
}

TEST_F(ConversationTest, EveryMessageArrivesOnItsOwnWhenTheLinkStallsForAWhile) {
  ASSERT_NO_FATAL_FAILURE(Connect(kBadLink, 2));
  ASSERT_NO_FATAL_FAILURE(Start({.steps = 40}));
  const auto hasBegun = [this] {
    return conversations_.front().Bob().LinesOfOthers().size() >= 10;
  };
  ASSERT_TRUE(WaitUntil(hasBegun, kLimit));
  Cable().Stall(5s);
  ExpectAllShown();
}

TEST_F(ConversationTest, WaitingLinesStillArriveWhenTheUserCloses) {
  ASSERT_NO_FATAL_FAILURE(Connect({.delay = 50ms}, 1));
  PeerProcess& alice = conversations_.front().Alice();
  PeerProcess& bob = conversations_.front().Bob();
  for (const char* line : {"one", "two", "three", "/CLOSE"}) alice.Enter(line);
  ASSERT_TRUE(WaitUntil([&] { return bob.Status().endsWith(". Disconnected."); }, kLimit));
  // The lines are reported a moment later, once the pane no longer changes.
  WaitUntil([&] { return bob.LinesOfOthers().size() == 3; }, kLimit);
  EXPECT_EQ(bob.LinesOfOthers(), (QStringList{"<Afirst>one", "<Afirst>two", "<Afirst>three"}));
  EXPECT_FALSE(alice.StatusToolTip().contains("not delivered"));
}

TEST_F(ConversationTest, LinesThatCannotBeSentInTimeWhenTheUserClosesAreReported) {
  ASSERT_NO_FATAL_FAILURE(Connect({.delay = 500ms}, 1));
  PeerProcess& alice = conversations_.front().Alice();
  for (int i = 0; i < 5; ++i) alice.Enter(QString("line %1").arg(i));
  alice.Enter("/CLOSE");
  ASSERT_TRUE(WaitUntil([&] { return alice.StatusToolTip().contains("not delivered"); }, kLimit));
  EXPECT_TRUE(alice.Log("Bfirst").contains("not delivered"));
}

}  // namespace
}  // namespace verlume::network
