#include "shell/link_text.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

std::u16string Host(std::u16string_view letters) {
  return ShowableHost({.ascii = u"xn--1", .letters = std::u16string(letters)});
}

std::u16string Shown(std::u16string_view address, std::u16string_view host = u"example.org") {
  return ShowableAddress(address, {.ascii = std::u16string(host), .letters = std::u16string(host)});
}

TEST(LinkTextTest, AHostOfOneScriptKeepsItsLetters) {
  EXPECT_EQ(Host(u"www.example.org"), u"www.example.org");
  EXPECT_EQ(Host(u"παράδειγμα.ελ"), u"παράδειγμα.ελ");
  EXPECT_EQ(Host(u"παράδειγμα-2.example.org"), u"παράδειγμα-2.example.org");
}

TEST(LinkTextTest, AnyOtherHostIsInPunycode) {
  EXPECT_EQ(Host(u"exαmple.org"), u"xn--1") << "two alphabets in one word";
  EXPECT_EQ(Host(u"οικο.org"), u"xn--1") << "each letter looks Latin";
  EXPECT_EQ(Host(u"еxamplе.org"), u"xn--1") << "Cyrillic";
  EXPECT_EQ(Host(u"exämple.org"), u"xn--1");
  EXPECT_EQ(Host(u"例え.org"), u"xn--1");
}

TEST(LinkTextTest, TheHostOfTheAddressIsShownThatWay) {
  const LinkHost host{.ascii = u"xn--xmple-7of.org", .letters = u"exαmple.org"};
  EXPECT_EQ(ShowableAddress(u"http://exαmple.org/σελίδα", host),
            u"http://xn--xmple-7of.org/σελίδα");
  EXPECT_EQ(ShowableAddress(u"http://bank.org@exαmple.org:80?a", host),
            u"http://bank.org@xn--xmple-7of.org:80?a");
}

TEST(LinkTextTest, WhatIsNotSeenIsEscaped) {
  EXPECT_EQ(Shown(u"http://example.org/a\u202Eb"), u"http://example.org/a\\u202Eb");
  EXPECT_EQ(Shown(u"http://example.org/a\u0007b"), u"http://example.org/a\\x07b");
}

TEST(LinkTextTest, ALongAddressIsCutInTheMiddle) {
  std::u16string shown = Shown(u"http://example.org/" + std::u16string(2000, u'x') + u"/end");
  std::erase_if(shown, [](char16_t c) { return c == u'\r' || c == u'\n'; });
  EXPECT_LT(shown.size(), 520u);
  EXPECT_TRUE(shown.starts_with(u"http://example.org/xxx"));
  EXPECT_NE(shown.find(u'\u2026'), shown.npos);
  EXPECT_TRUE(shown.ends_with(u"/end"));
}

TEST(LinkTextTest, TheHostIsNeverCut) {
  const std::u16string host = std::u16string(700, u'h') + u".org";
  std::u16string shown = Shown(u"http://" + host + u"/" + std::u16string(900, u'x'), host);
  for (std::size_t at; (at = shown.find(u"\r\n")) != shown.npos;) shown.erase(at, 2);
  EXPECT_NE(shown.find(host), shown.npos);
  EXPECT_LT(shown.size(), 850u);
}

TEST(LinkTextTest, AMessageBoxIsNotMadeWide) {
  const std::u16string shown = Shown(u"http://example.org/" + std::u16string(200, u'x'));
  for (std::size_t start = 0; start < shown.size();) {
    const std::size_t end = std::min(shown.find(u"\r\n", start), shown.size());
    EXPECT_LE(end - start, 60u);
    start = end + 2;
  }
}

TEST(LinkTextTest, AnAddressWithoutAHostIsShownAsItIs) {
  EXPECT_EQ(ShowableAddress(u"mailto:ann@example.org?subject=a", {}),
            u"mailto:ann@example.org?subject=a");
}

}  // namespace
}  // namespace verlume
