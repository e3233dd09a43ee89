#include "shell/undelivered.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "shell/text_pair.h"

namespace verlume {
namespace {

using testing::ElementsAre;

PeerTrace InPrivate(std::uint8_t number) {
  PeerTrace peer = {.called = u"bob 4000", .address = u"192.0.2.2", .nickname = u"Bob"};
  peer.key.emplace().fill(number);
  return peer;
}

PeerTrace InClear(std::u16string called, std::u16string address, std::u16string nickname = u"Bob") {
  return {.key = std::nullopt,
          .called = std::move(called),
          .address = std::move(address),
          .nickname = std::move(nickname)};
}

TEST(SamePeerTest, InPrivateTheKeyDecidesAlone) {
  PeerTrace elsewhere = InPrivate(1);
  elsewhere.called = u"";
  elsewhere.address = u"198.51.100.7";
  elsewhere.nickname = u"Robert";
  EXPECT_TRUE(IsSamePeer(InPrivate(1), elsewhere));
  EXPECT_FALSE(IsSamePeer(InPrivate(1), InPrivate(2)));
}

TEST(SamePeerTest, WhatWasSaidInPrivateIsForNobodyInClear) {
  PeerTrace clear = InPrivate(1);
  clear.key.reset();
  EXPECT_FALSE(IsSamePeer(InPrivate(1), clear));
  EXPECT_TRUE(IsSamePeer(clear, InPrivate(1))) << "said in clear, it asks for no more";
}

TEST(SamePeerTest, InClearItIsThePlaceThatWasCalledBothTimes) {
  const PeerTrace said = InClear(u"bob 4000", u"192.0.2.2");
  EXPECT_TRUE(IsSamePeer(said, InClear(u"bob 4000", u"192.0.2.9")));
  EXPECT_FALSE(IsSamePeer(said, InClear(u"bob 4001", u"192.0.2.2")));
}

TEST(SamePeerTest, OrElseTheAddress) {
  const PeerTrace called = InClear(u"bob 4000", u"192.0.2.2");
  const PeerTrace caller = InClear(u"", u"192.0.2.2");
  EXPECT_TRUE(IsSamePeer(called, caller));
  EXPECT_TRUE(IsSamePeer(caller, called));
  EXPECT_TRUE(IsSamePeer(caller, caller));
  EXPECT_FALSE(IsSamePeer(caller, InClear(u"", u"192.0.2.3")));
  EXPECT_FALSE(IsSamePeer(InClear(u"", u""), InClear(u"", u""))) << "no address is no trace";
}

TEST(SamePeerTest, InClearTheNicknameIsTheSameToo) {
  EXPECT_FALSE(
      IsSamePeer(InClear(u"bob 4000", u"192.0.2.2"), InClear(u"bob 4000", u"192.0.2.2", u"Carol")));
}

class UndeliveredLinesStoreTest : public testing::Test {
 protected:
  void Say(ConnectionNumber connection, std::initializer_list<std::u16string_view> said) {
    for (const std::u16string_view line : said) lines.Add(connection, line, true);
  }
  std::vector<std::u16string> TakeAll(const PeerTrace& peer) {
    std::vector<std::u16string> taken;
    while (auto line = lines.TakeFirstFor(peer)) taken.push_back(*line);
    return taken;
  }

  const PeerTrace bob = InPrivate(1);
  const PeerTrace carol = InPrivate(2);
  UndeliveredLines lines;
};

TEST_F(UndeliveredLinesStoreTest, WhatIsConfirmedIsForgotten) {
  lines.Meet(1, bob);
  Say(1, {u"a", u"b", u"c"});
  lines.Keep(1, 2);
  EXPECT_EQ(lines.CountFor(bob), 0u) << "nothing is lost yet";
  lines.Lose(1, 1);
  EXPECT_EQ(lines.CountFor(bob), 1u);
  EXPECT_THAT(TakeAll(bob), ElementsAre(u"c"));
  EXPECT_EQ(lines.CountFor(bob), 0u);
}

TEST_F(UndeliveredLinesStoreTest, EachPeerHasItsOwnAndTheOrderIsKept) {
  lines.Meet(1, bob);
  Say(1, {u"b1", u"b2"});
  lines.Lose(1, 2);
  lines.Meet(2, carol);
  Say(2, {u"c1"});
  lines.Lose(2, 1);
  lines.Meet(3, bob);
  Say(3, {u"b3"});
  lines.Lose(3, 1);
  EXPECT_EQ(*lines.FirstFor(bob), u"b1");
  EXPECT_THAT(TakeAll(bob), ElementsAre(u"b1", u"b2", u"b3"));
  lines.DropFor(bob);
  EXPECT_THAT(TakeAll(carol), ElementsAre(u"c1"));
}

TEST_F(UndeliveredLinesStoreTest, LinesWithoutAConversationAreForNobody) {
  Say(1, {u"early"});
  lines.Lose(1, 1);
  EXPECT_EQ(lines.FirstFor({}), nullptr);
  Say(2, {u"early"});
  lines.Meet(2, bob);
  lines.Lose(2, 1);
  EXPECT_THAT(TakeAll(bob), ElementsAre(u"early")) << "the conversation has begun in time";
}

TEST_F(UndeliveredLinesStoreTest, WhatCameAfterTheEndIsLostInAnyCase) {
  lines.Meet(1, bob);
  Say(1, {u"a", u"b"});
  lines.Add(1, u"late", false);
  lines.Keep(1, 1);
  lines.Lose(1, 0);
  lines.Lose(1, 5);
  EXPECT_THAT(TakeAll(bob), ElementsAre(u"late"));
}

TEST_F(UndeliveredLinesStoreTest, TheLossMayBeKnownOnlyInTheNextConversation) {
  lines.Meet(1, bob);
  Say(1, {u"a", u"b"});
  lines.Meet(2, carol);
  Say(2, {u"c"});
  lines.Lose(1, 1);
  EXPECT_EQ(lines.CountFor(carol), 0u);
  EXPECT_THAT(TakeAll(bob), ElementsAre(u"b"));
  lines.Lose(2, 1);
  EXPECT_THAT(TakeAll(carol), ElementsAre(u"c"));
}

TEST_F(UndeliveredLinesStoreTest, ButNotInTheNextButOne) {
  lines.Meet(1, bob);
  Say(1, {u"a"});
  lines.Meet(2, carol);
  lines.Meet(3, carol);
  lines.Lose(1, 1);
  EXPECT_EQ(lines.CountFor(bob), 0u);
}

TEST_F(UndeliveredLinesStoreTest, TooManyLinesAreCountedAndTheLastOnesKept) {
  lines.Meet(1, bob);
  for (long long i = 0; i < 1005; ++i) lines.Add(1, DecimalText(i), true);
  lines.Keep(1, 1003);
  lines.Lose(1, 1003);
  EXPECT_EQ(lines.CountFor(bob), 1003u);
  EXPECT_EQ(lines.KeptFor(bob), UndeliveredLines::kMostLines);
  EXPECT_EQ(*lines.FirstFor(bob), u"5");
  lines.DropFor(bob);
  EXPECT_EQ(lines.CountFor(bob), 0u);
}

TEST_F(UndeliveredLinesStoreTest, WhatHasLeftAndWasDeliveredIsNotCounted) {
  lines.Meet(1, bob);
  for (long long i = 0; i < 1005; ++i) lines.Add(1, DecimalText(i), true);
  lines.Keep(1, 10);
  lines.Lose(1, 10);
  EXPECT_EQ(lines.CountFor(bob), 10u);
  EXPECT_EQ(*lines.FirstFor(bob), u"995");
}

TEST_F(UndeliveredLinesStoreTest, TheOldestLeaveWhoeverTheyWereFor) {
  const std::u16string mebibyte(std::size_t{1} << 19, u'x');
  lines.Meet(1, bob);
  for (int i = 0; i < 5; ++i) lines.Add(1, mebibyte, true);
  lines.Lose(1, 5);
  lines.Meet(2, carol);
  for (int i = 0; i < 5; ++i) lines.Add(2, mebibyte, true);
  lines.Lose(2, 5);
  EXPECT_EQ(lines.KeptFor(bob), 3u);
  EXPECT_EQ(lines.CountFor(bob), 5u);
  EXPECT_EQ(lines.KeptFor(carol), 5u);
}

TEST_F(UndeliveredLinesStoreTest, ALineThatIsTooLongIsOnlyCounted) {
  lines.Meet(1, bob);
  lines.Add(1, std::u16string(UndeliveredLines::kMostBytes, u'x'), true);
  lines.Lose(1, 1);
  EXPECT_EQ(lines.CountFor(bob), 1u);
  EXPECT_EQ(lines.FirstFor(bob), nullptr);
  lines.Meet(2, bob);
  EXPECT_EQ(lines.CountFor(bob), 0u) << "it cannot be offered";
}

}  // namespace
}  // namespace verlume
