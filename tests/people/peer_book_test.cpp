#include "people/peer_book.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "people/people_samples.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PeerBookTest : public testing::Test {
 protected:
  const KnownPeer& PeerOf(int key) const { return *book.Find(KeyOfNumber(key)); }

  PeerBook book;
};

TEST_F(PeerBookTest, AMeetingIsWrittenDown) {
  book.Meet(MeetingOf(1, u"Bob", u"bob.example 4000"));
  book.Meet(MeetingOf(1, u"Bobby", u"192.0.2.2", {2026, 11, 22}));
  ASSERT_EQ(book.Peers().size(), 1u);
  EXPECT_THAT(PeerOf(1).names, ElementsAre(u"Bobby", u"Bob"));
  EXPECT_THAT(PeerOf(1).addresses, ElementsAre(u"192.0.2.2", u"bob.example 4000"));
  EXPECT_EQ(PeerOf(1).first, (Day{2026, 11, 3}));
  EXPECT_EQ(PeerOf(1).last, (Day{2026, 11, 22}));
  EXPECT_FALSE(PeerOf(1).isInvited || PeerOf(1).isVerified);
  EXPECT_EQ(book.Find(KeyOfNumber(2)), nullptr);
}

TEST_F(PeerBookTest, WhatWasOnceIsNotTakenBackByAMeeting) {
  PeerBook::Meeting meeting = MeetingOf(1, u"Bob");
  meeting.isInvited = true;
  book.Meet(meeting);
  book.Verify(KeyOfNumber(1), u"Bob", {2026, 11, 3});
  book.Meet(MeetingOf(1, u"Bob", u"", {2026, 1, 1}));
  EXPECT_TRUE(PeerOf(1).isInvited);
  EXPECT_TRUE(PeerOf(1).isVerified);
  EXPECT_EQ(PeerOf(1).last, (Day{2026, 11, 3})) << "the clock may have been wrong";
}

TEST_F(PeerBookTest, OfNamesAndAddressesTheNewestEightAreKept) {
  for (char16_t c = u'a'; c <= u'j'; ++c) {
    book.Meet(MeetingOf(1, std::u16string(1, c), u"192.0.2.1" + std::u16string(1, c)));
  }
  book.Meet(MeetingOf(1, u"d"));
  EXPECT_THAT(PeerOf(1).names, ElementsAre(u"d", u"j", u"i", u"h", u"g", u"f", u"e", u"c"));
  EXPECT_EQ(PeerOf(1).addresses.size(), kMostOfPeer);
}

TEST_F(PeerBookTest, NamesAreKeptAsTheyAreShown) {
  book.Meet(MeetingOf(1, u"Bob\n\u202E" + std::u16string(100, u'x'), u"bad\naddress 1"));
  EXPECT_EQ(PeerOf(1).names.front(), u"Bob\\x0A\\u202E" + std::u16string(19, u'x'));
  EXPECT_THAT(PeerOf(1).addresses, IsEmpty());
}

TEST_F(PeerBookTest, ANameThatIsEmptyIsNone) {
  book.Meet(MeetingOf(1, u""));
  EXPECT_THAT(PeerOf(1).names, IsEmpty());
  EXPECT_EQ(book.AnotherNamed(u"", nullptr), nullptr);
  EXPECT_EQ(NameOf(PeerOf(1)), u"");
}

TEST_F(PeerBookTest, WhereSomebodyWasCalledOnlyTheLastHasAnswered) {
  book.Meet(MeetingOf(1, u"Bob", u"bob.example 4000"));
  EXPECT_EQ(book.AnsweredAt(u"bob.example 4000")->key, KeyOfNumber(1));
  book.Meet(MeetingOf(2, u"Bob", u"bob.example 4000"));
  EXPECT_EQ(book.AnsweredAt(u"bob.example 4000")->key, KeyOfNumber(2));
  EXPECT_THAT(PeerOf(1).addresses, IsEmpty());
  EXPECT_EQ(book.AnsweredAt(u"bob.example 4001"), nullptr);
  EXPECT_EQ(book.AnsweredAt(u""), nullptr);
}

TEST_F(PeerBookTest, ManyMayCallFromTheSameAddress) {
  book.Meet(MeetingOf(1, u"Ann", u"192.0.2.1"));
  book.Meet(MeetingOf(2, u"Bob", u"192.0.2.1"));
  EXPECT_THAT(PeerOf(1).addresses, ElementsAre(u"192.0.2.1"));
  EXPECT_THAT(PeerOf(2).addresses, ElementsAre(u"192.0.2.1"));
}

TEST_F(PeerBookTest, AnotherWithANameThatReadsTheSameIsFoundTheMostTrustedFirst) {
  book.Meet(MeetingOf(1, u"Bob"));
  book.Meet(MeetingOf(2, u"bob"));
  book.Meet(MeetingOf(3, u"Bоb"));  // with a Cyrillic letter
  book.Verify(KeyOfNumber(3), u"Robert", {2026, 11, 3});
  const KeyFingerprint third = KeyOfNumber(3);
  EXPECT_EQ(book.AnotherNamed(u"BOB", nullptr)->key, third);
  EXPECT_EQ(book.AnotherNamed(u"robert", nullptr)->key, third);
  EXPECT_EQ(book.AnotherNamed(u"BOB", &third)->key, KeyOfNumber(1));
  EXPECT_EQ(book.AnotherNamed(u"robert", &third), nullptr);
  EXPECT_EQ(book.AnotherNamed(u"Carol", nullptr), nullptr);
}

TEST_F(PeerBookTest, VerifyingKeepsTheNameThatThePersonHasThen) {
  book.Meet(MeetingOf(1, u"Carol"));
  book.Verify(KeyOfNumber(1), u"Carol", {2026, 11, 3});
  book.Meet(MeetingOf(1, u"Bob"));
  EXPECT_TRUE(PeerOf(1).isVerified);
  EXPECT_EQ(NameOf(PeerOf(1)), u"Carol");
  book.SetGivenName(KeyOfNumber(1), u"My Carol");
  book.Verify(KeyOfNumber(1), u"Bob", {2026, 11, 3});
  EXPECT_EQ(NameOf(PeerOf(1)), u"My Carol");
}

TEST_F(PeerBookTest, AKeyThatIsNotInTheBookCanBeVerified) {
  book.Verify(KeyOfNumber(7), u"Carol", {2026, 11, 3});
  EXPECT_TRUE(PeerOf(7).isVerified);
  EXPECT_EQ(PeerOf(7).first, (Day{2026, 11, 3}));
}

TEST_F(PeerBookTest, WhatTheUserChangesIsChanged) {
  book.Meet(MeetingOf(1, u"Bob"));
  book.SetVerified(KeyOfNumber(1), true);
  EXPECT_TRUE(PeerOf(1).isVerified);
  book.SetGivenName(KeyOfNumber(1), u"Robert");
  EXPECT_EQ(NameOf(PeerOf(1)), u"Robert");
  EXPECT_NE(book.AnotherNamed(u"Robert", nullptr), nullptr);
  book.SetGivenName(KeyOfNumber(1), u"");
  EXPECT_EQ(book.AnotherNamed(u"Robert", nullptr), nullptr);
  EXPECT_EQ(NameOf(PeerOf(1)), u"Bob");
  book.Forget(KeyOfNumber(1));
  EXPECT_THAT(book.Peers(), IsEmpty());
  book.Forget(KeyOfNumber(1));
  book.SetVerified(KeyOfNumber(1), true);
  book.SetGivenName(KeyOfNumber(1), u"Robert");
  EXPECT_THAT(book.Peers(), IsEmpty());
}

TEST_F(PeerBookTest, WhenItIsFullTheOneLeavesThatWasNotMetForTheLongestTime) {
  for (int i = 1; i <= 1000; ++i) book.Meet(MeetingOf(i, u"x"));
  book.Verify(KeyOfNumber(1), u"", {2026, 11, 3});
  book.Meet(MeetingOf(2, u"x"));
  book.Meet(MeetingOf(1001, u"x"));
  EXPECT_EQ(book.Peers().size(), kMostPeers);
  EXPECT_NE(book.Find(KeyOfNumber(1)), nullptr) << "verified";
  EXPECT_NE(book.Find(KeyOfNumber(2)), nullptr) << "met again";
  EXPECT_EQ(book.Find(KeyOfNumber(3)), nullptr);
  EXPECT_NE(book.Find(KeyOfNumber(1001)), nullptr);
}

TEST_F(PeerBookTest, NoVerifiedOneEverLeaves) {
  for (int i = 1; i <= 1000; ++i) book.Verify(KeyOfNumber(i), u"x", {2026, 11, 3});
  book.Meet(MeetingOf(1001, u"y"));
  EXPECT_EQ(book.Peers().size(), kMostPeers);
  EXPECT_EQ(book.Find(KeyOfNumber(1001)), nullptr);
}

}  // namespace
}  // namespace verlume
