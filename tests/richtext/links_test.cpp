#include "richtext/links.h"

#include <gtest/gtest.h>

namespace verlume::richtext {
namespace {

// The address in a text at the place of the "|", which is not part of it; "" if there is none.
std::u16string Found(std::u16string text) {
  const std::size_t place = text.find(u'|');
  text.erase(place, 1);
  const auto link = LinkAt(text, place);
  return link ? text.substr(link->start, link->length) : std::u16string();
}

TEST(LinksTest, TheseBeginsAreAddresses) {
  EXPECT_EQ(Found(u"see http://e|xample.org now"), u"http://example.org");
  EXPECT_EQ(Found(u"see |https://example.org/a?b=c#d"), u"https://example.org/a?b=c#d");
  EXPECT_EQ(Found(u"HTTPS://EXAMPLE.OR|G"), u"HTTPS://EXAMPLE.ORG");
  EXPECT_EQ(Found(u"write to mailto:ann@exampl|e.org"), u"mailto:ann@example.org");
  EXPECT_EQ(Found(u"(ww|w.example.org)"), u"www.example.org");
  EXPECT_EQ(Found(u"http://παρά|δειγμα.ελ/σελίδα"), u"http://παράδειγμα.ελ/σελίδα");
  EXPECT_EQ(Found(u"http://[::1|]:80/"), u"http://[::1]:80/");
}

TEST(LinksTest, OthersAreNot) {
  EXPECT_EQ(Found(u"ftp://exam|ple.org"), u"");
  EXPECT_EQ(Found(u"file:///e|tc/passwd"), u"");
  EXPECT_EQ(Found(u"javascript:al|ert(1)"), u"");
  EXPECT_EQ(Found(u"xhttp://exam|ple.org"), u"");
  EXPECT_EQ(Found(u"exam|ple.org"), u"");
  EXPECT_EQ(Found(u"see http|:// there"), u"");
  EXPECT_EQ(Found(u"www|."), u"");
  EXPECT_EQ(Found(u"mailto|:ann"), u"");
  EXPECT_EQ(Found(u"|"), u"");
}

TEST(LinksTest, ThePlaceMustBeWithin) {
  EXPECT_EQ(Found(u"see| http://example.org"), u"");
  EXPECT_EQ(Found(u"http://example.org| now"), u"");
  EXPECT_EQ(Found(u"http://example.org/a http://example.org/|b"), u"http://example.org/b");
}

TEST(LinksTest, ClosingPunctuationIsNotWithin) {
  EXPECT_EQ(Found(u"http://exam|ple.org/a."), u"http://example.org/a");
  EXPECT_EQ(Found(u"is it http://exam|ple.org/a?!"), u"http://example.org/a");
  EXPECT_EQ(Found(u"http://exam|ple.org/a\u037E και"), u"http://example.org/a");
  EXPECT_EQ(Found(u"http://example.org/a|."), u"");
  EXPECT_EQ(Found(u"\u00ABhttp://exam|ple.org\u00BB"), u"http://example.org");
}

TEST(LinksTest, BracketsAreBalanced) {
  EXPECT_EQ(Found(u"(see http://exam|ple.org/a)"), u"http://example.org/a");
  EXPECT_EQ(Found(u"http://exam|ple.org/a_(b)"), u"http://example.org/a_(b)");
  EXPECT_EQ(Found(u"(http://exam|ple.org/a_(b))."), u"http://example.org/a_(b)");
}

TEST(LinksTest, WhatIsNotSeenEndsIt) {
  for (const char16_t c : {u'\u202E', u'\u200B', u'\u0007', u'\u00A0', u'\u2066', u'\uFEFF'}) {
    EXPECT_EQ(Found(u"http://exam|ple.org" + std::u16string(1, c) + u"gro.live"),
              u"http://example.org");
  }
}

TEST(LinksTest, LongOnesAreNone) {
  const std::u16string longest = u"http://example.org/" + std::u16string(kLongestLink - 19, u'x');
  for (const std::size_t place : {std::size_t{0}, std::size_t{1000}, kLongestLink - 1}) {
    EXPECT_TRUE(LinkAt(longest, place)) << place;
    EXPECT_FALSE(LinkAt(longest + u'x', place)) << place;
  }
  EXPECT_FALSE(LinkAt(u"http://example.org/" + std::u16string(100'000, u'x'), 50'000));
}

TEST(LinksTest, AnAddressIsAsItCanBeOpened) {
  EXPECT_EQ(AddressOf(u"www.example.org"), u"https://www.example.org");
  EXPECT_EQ(AddressOf(u"http://www.example.org"), u"http://www.example.org");
}

}  // namespace
}  // namespace verlume::richtext
