#include "commands/text_search.h"

#include <gtest/gtest.h>

#include "platform_fake/fake_system.h"

namespace verlume {
namespace {

class TextSearchTest : public testing::Test {
 protected:
  std::optional<TextMatch> Find(std::u16string_view words, std::u16string_view text,
                                std::size_t from = 0) {
    return TextSearch(words, locale).Find(text, from);
  }

  fake::FakeLocale locale;
};

TEST_F(TextSearchTest, FindsTheFirstMatchAtThePlaceOrBehind) {
  EXPECT_EQ(Find(u"line", u"a line, a line"), (TextMatch{2, 4}));
  EXPECT_EQ(Find(u"line", u"a line, a line", 2), (TextMatch{2, 4}));
  EXPECT_EQ(Find(u"line", u"a line, a line", 3), (TextMatch{10, 4}));
  EXPECT_EQ(Find(u"line", u"a line, a line", 11), std::nullopt);
}

TEST_F(TextSearchTest, CaseAndAccentsAreTheSame) {
  EXPECT_EQ(Find(u"ΚΑΛΗΜΕΡΑ", u"<Άννα>Καλημέρα!"), (TextMatch{6, 8}));
  EXPECT_EQ(Find(u"καλημέρα", u"ΚΑΛΗΜΕΡΑ"), (TextMatch{0, 8}));
  EXPECT_EQ(Find(u"cafe", u"le Café"), (TextMatch{3, 4}));
  EXPECT_EQ(Find(u"CAFÉ", u"le cafe"), (TextMatch{3, 4}));
}

TEST_F(TextSearchTest, FinalSigmaIsASigma) {
  EXPECT_EQ(Find(u"ΚΟΣΜΟΣ", u"ο κόσμος"), (TextMatch{2, 6}));
  EXPECT_EQ(Find(u"ος", u"κόσμο"), (TextMatch{1, 2}));
}

TEST_F(TextSearchTest, AccentsOfTheirOwnBelongToTheLetterBeforeThem) {
  EXPECT_EQ(Find(u"μερα", u"καλημε\u0301ρα"), (TextMatch{4, 5}));
  EXPECT_EQ(Find(u"me\u0301re", u"la mere"), (TextMatch{3, 4}));
  EXPECT_EQ(Find(u"caf", u"caf\u0301\u0302x"), (TextMatch{0, 5}));
  EXPECT_EQ(Find(u"x", u"a\u0301x"), (TextMatch{2, 1}));
}

TEST_F(TextSearchTest, WordsWithoutALetterAreNothingToLookFor) {
  EXPECT_TRUE(TextSearch(u"", locale).IsEmpty());
  EXPECT_TRUE(TextSearch(u"\u0301", locale).IsEmpty());
  EXPECT_EQ(Find(u"", u"text"), std::nullopt);
  EXPECT_FALSE(TextSearch(u" ", locale).IsEmpty());
}

TEST_F(TextSearchTest, MatchThatBeginsWithinABrokenOneIsFound) {
  EXPECT_EQ(Find(u"aab", u"aaab"), (TextMatch{1, 3}));
  EXPECT_EQ(Find(u"ababac", u"abababac"), (TextMatch{2, 6}));
  EXPECT_EQ(Find(u"abcabd", u"abcabcabd"), (TextMatch{3, 6}));
  EXPECT_EQ(Find(u"aabaaa", u"aabaabaaa"), (TextMatch{3, 6}));
}

TEST_F(TextSearchTest, PlaceBehindTheEndFindsNothing) {
  EXPECT_EQ(Find(u"a", u"aaa", 3), std::nullopt);
  EXPECT_EQ(Find(u"a", u"aaa", 100), std::nullopt);
}

// A naive search would take the product of both lengths: minutes.
TEST_F(TextSearchTest, TextMadeToBeSlowTakesNoLonger) {
  const std::u16string text(1'000'000, u'a');
  const std::u16string words = std::u16string(50'000, u'a') + u'b';
  EXPECT_EQ(Find(words, text), std::nullopt);
}

}  // namespace
}  // namespace verlume
