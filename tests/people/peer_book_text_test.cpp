#include "people/peer_book_text.h"

#include <gtest/gtest.h>

#include "people/fingerprint_text.h"
#include "people/people_samples.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr std::u16string_view kSection =
    u"[0001000000000000000000000000000000000000000000000000000000000000]\r\n";
constexpr std::u16string_view kDays = u"First=2026-11-03\r\nLast=2026-11-03\r\n";

std::u16string Joined(std::initializer_list<std::u16string_view> parts) {
  std::u16string text;
  for (const std::u16string_view part : parts) text += part;
  return text;
}

TEST(PeerBookTextTest, TheTextIsReadable) {
  PeerBook book;
  PeerBook::Meeting meeting = MeetingOf(1, u" Bob \"B\" ", u"bob.example 4000");
  meeting.isNameAccepted = true;
  book.Meet(meeting);
  book.SetGivenName(KeyOfNumber(1), u"Βασίλης");
  book.SetVerified(KeyOfNumber(1), true);
  EXPECT_EQ(PeerBookText(book), Joined({kSection, kDays,
                                        u"Invited=False\r\nVerified=True\r\nGiven=\"Βασίλης\"\r\n"
                                        u"Name=\" Bob \"B\" \"\r\nAddress=\"bob.example 4000\"\r\n"
                                        u"Accepted=\" Bob \"B\" \"\r\n\r\n"}));
}

TEST(PeerBookTextTest, WhatIsWrittenIsReadBack) {
  PeerBook book;
  for (int i = 1; i <= 20; ++i) {
    PeerBook::Meeting meeting = MeetingOf(i, u" =[]; \" ", u"192.0.2.1", {2026, 1, i});
    meeting.isInvited = i % 2 == 0;
    meeting.isNameAccepted = i % 3 == 0;
    book.Meet(meeting);
    book.Meet(MeetingOf(i, u"Bob", u"bob 4000", {2026, 2, i}));
    book.SetVerified(KeyOfNumber(i), i % 5 == 0);
  }
  const PeerBookParse parse = ParsePeerBook(PeerBookText(book));
  EXPECT_TRUE(parse.isWhole);
  EXPECT_EQ(parse.book.Peers(), book.Peers());
}

TEST(PeerBookTextTest, LinesMayBeEditedByHand) {
  const PeerBookParse parse =
      ParsePeerBook(Joined({u"\xFEFF; mine\n\n  ", kSection, kDays, u"  Verified = True  "}));
  EXPECT_TRUE(parse.isWhole);
  ASSERT_EQ(parse.book.Peers().size(), 1u);
  EXPECT_TRUE(parse.book.Peers().front().isVerified);
}

TEST(PeerBookTextTest, WhatIsNotUnderstoodIsLeftOutAndTold) {
  const std::u16string good = Joined({kSection, kDays});
  EXPECT_TRUE(ParsePeerBook(good).isWhole);
  EXPECT_TRUE(ParsePeerBook(u"").isWhole);
  for (const std::u16string_view line :
       {u"Verified=yes", u"Name=Bob", u"Colour=\"red\"", u"First=tomorrow", u"hello", u"[12]",
        u"[0002", u"Given=\"x"}) {
    const PeerBookParse parse = ParsePeerBook(good + std::u16string(line));
    EXPECT_FALSE(parse.isWhole);
    EXPECT_EQ(parse.book.Peers().size(), 1u);
  }
  EXPECT_FALSE(ParsePeerBook(u"Verified=True").isWhole);
  EXPECT_FALSE(ParsePeerBook(kSection).isWhole) << "without days";
  EXPECT_FALSE(ParsePeerBook(good + good).isWhole) << "the same key twice";
  EXPECT_FALSE(ParsePeerBook(std::u16string_view(u"\0\1\2", 3)).isWhole);
}

TEST(PeerBookTextTest, NoTextIsTooMuch) {
  std::u16string text(kSection);
  text += kDays;
  for (int i = 0; i < 100; ++i) text += u"Name=\"" + DecimalText(i) + u"\"\r\n";
  text += u"Given=\"" + std::u16string(10'000, u'x') + u"\"\r\n";
  PeerBookParse parse = ParsePeerBook(text);
  EXPECT_FALSE(parse.isWhole);
  EXPECT_EQ(parse.book.Peers().front().names.size(), kMostOfPeer);
  EXPECT_EQ(parse.book.Peers().front().givenName.size(), 32u);
  text.clear();
  for (int i = 1; i <= 1001; ++i) {
    text += u"[" + HexText(KeyOfNumber(i)) + u"]\r\n";
    text += kDays;
  }
  parse = ParsePeerBook(text);
  EXPECT_FALSE(parse.isWhole);
  EXPECT_EQ(parse.book.Peers().size(), kMostPeers);
}

}  // namespace
}  // namespace verlume
