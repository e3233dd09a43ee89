#include "people/peer_verdict.h"

#include <gtest/gtest.h>

#include "people/people_samples.h"

namespace verlume {
namespace {

constexpr std::u16string_view kBobsPlace = u"bob.example 4000";

class PeerVerdictTest : public testing::Test {
 protected:
  PeerVerdictTest() {
    book.Meet(MeetingOf(1, u"Bob", kBobsPlace));
    book.Meet(MeetingOf(2, u"Carol", u"192.0.2.3"));
  }
  StopReason Private(int key, std::u16string_view name, std::u16string_view called = u"") const {
    return JudgePeer(book, KeyOfNumber(key), name, called).stop;
  }
  StopReason Clear(std::u16string_view name, std::u16string_view called = u"") const {
    return JudgePeer(book, std::nullopt, name, called).stop;
  }

  PeerBook book;
};

TEST_F(PeerVerdictTest, WhoIsNewOrAsBeforeIsLetIn) {
  EXPECT_EQ(Private(9, u"Dora", u"dora 1"), StopReason::None);
  EXPECT_EQ(Private(1, u"Bob", kBobsPlace), StopReason::None);
  EXPECT_EQ(Private(1, u"Robert", u"elsewhere 1"), StopReason::None);
  EXPECT_EQ(Clear(u"Dora", u"dora 1"), StopReason::None);
  EXPECT_EQ(Clear(u""), StopReason::None);
}

TEST_F(PeerVerdictTest, AnotherKeyWhereSomebodyWasCalledStops) {
  EXPECT_EQ(Private(9, u"Dora", kBobsPlace), StopReason::OtherKeyAtAddress);
  EXPECT_EQ(JudgePeer(book, KeyOfNumber(9), u"Dora", kBobsPlace).known, u"Bob");
  EXPECT_EQ(Private(2, u"Carol", kBobsPlace), StopReason::OtherKeyAtAddress);
  EXPECT_EQ(Private(9, u"Dora", u"bob.example 4001"), StopReason::None) << "another port";
}

TEST_F(PeerVerdictTest, AnAddressThatSomebodyCameFromProvesNothing) {
  EXPECT_EQ(Private(9, u"Dora", u"192.0.2.3 4000"), StopReason::None);
}

TEST_F(PeerVerdictTest, ANameOfWhoIsMerelyKnownIsNoStopInPrivate) {
  EXPECT_EQ(Private(9, u"Carol"), StopReason::None);
}

TEST_F(PeerVerdictTest, ANameOfWhoIsVerifiedOrInvitedStopsAnotherKey) {
  book.SetVerified(KeyOfNumber(2), true);
  EXPECT_EQ(Private(9, u"Carol"), StopReason::OtherKeyForName);
  EXPECT_EQ(Private(1, u"CAROL"), StopReason::OtherKeyForName) << "it reads the same";
  EXPECT_EQ(Private(2, u"Carol"), StopReason::None);
  PeerBook::Meeting invited = MeetingOf(3, u"Dora");
  invited.isInvited = true;
  book.Meet(invited);
  EXPECT_EQ(Private(9, u"Dora"), StopReason::OtherKeyForName);
  book.SetGivenName(KeyOfNumber(2), u"Caroline");
  EXPECT_EQ(Private(9, u"Caroline"), StopReason::OtherKeyForName) << "as the user calls her";
  EXPECT_EQ(JudgePeer(book, KeyOfNumber(9), u"Carol", u"").known, u"Caroline");
}

TEST_F(PeerVerdictTest, AKeyThatHadTheNameBeforeStopsUntilTheUserAcceptsIt) {
  book.Meet(MeetingOf(9, u"Carol"));
  book.SetVerified(KeyOfNumber(2), true);
  EXPECT_EQ(Private(9, u"Carol"), StopReason::OtherKeyForName);
  PeerBook::Meeting accepted = MeetingOf(9, u"Carol");
  accepted.isNameAccepted = true;
  book.Meet(accepted);
  EXPECT_EQ(Private(9, u"Carol"), StopReason::None);
}

TEST_F(PeerVerdictTest, TwoThatAreVerifiedMayHaveTheSameName) {
  book.Meet(MeetingOf(9, u"Carol"));
  book.SetVerified(KeyOfNumber(2), true);
  book.SetVerified(KeyOfNumber(9), true);
  EXPECT_EQ(Private(9, u"Carol"), StopReason::None);
  EXPECT_EQ(Private(2, u"Carol"), StopReason::None);
  book.Meet(MeetingOf(1, u"Bob"));
  book.SetVerified(KeyOfNumber(1), true);
  EXPECT_EQ(Private(1, u"Carol"), StopReason::OtherKeyForName) << "never had it before";
  book.SetGivenName(KeyOfNumber(1), u"Carol");
  EXPECT_EQ(Private(1, u"Carol"), StopReason::None) << "the user calls both so";
}

TEST_F(PeerVerdictTest, InClearEachNameAndPlaceKnownInPrivateStops) {
  EXPECT_EQ(Clear(u"Carol"), StopReason::ClearForName);
  EXPECT_EQ(Clear(u"Dora", kBobsPlace), StopReason::ClearAtAddress);
  EXPECT_EQ(JudgePeer(book, std::nullopt, u"Dora", kBobsPlace).known, u"Bob");
}

TEST_F(PeerVerdictTest, WhoHasNoNameIsNamedByThePlace) {
  book.Meet(MeetingOf(5, u"", u"host 1"));
  EXPECT_EQ(JudgePeer(book, KeyOfNumber(9), u"x", u"host 1").known, u"host 1");
}

}  // namespace
}  // namespace verlume
