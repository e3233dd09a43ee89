#include "commands/text_search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "platform_fake/fake_system.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class TextSearchTest : public testing::Test {
 protected:
  std::optional<TextMatch> Find(std::u16string_view words, std::u16string_view text,
                                std::size_t from = 0) {
    const std::vector<TextMatch> all =
        FindAll(words, {text.substr(std::min(from, text.size()))}, from);
    return all.empty() ? std::nullopt : std::optional(all.front());
  }
  // `pieces` are of one text, which begins at the position.
  std::vector<TextMatch> FindAll(std::u16string_view words,
                                 const std::vector<std::u16string_view>& pieces,
                                 std::size_t position = 0) {
    std::vector<TextMatch> matches;
    TextSearch search(words, locale, [&](const TextMatch& match) { matches.push_back(match); });
    search.Restart(position);
    for (const std::u16string_view piece : pieces) search.Feed(piece);
    search.Finish();
    return matches;
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
  EXPECT_TRUE(TextSearch(u"", locale, {}).IsEmpty());
  EXPECT_TRUE(TextSearch(u"\u0301", locale, {}).IsEmpty());
  EXPECT_EQ(Find(u"", u"text"), std::nullopt);
  EXPECT_FALSE(TextSearch(u" ", locale, {}).IsEmpty());
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

TEST_F(TextSearchTest, MatchesDoNotOverlap) {
  EXPECT_THAT(FindAll(u"aba", {u"ababaaba"}), ElementsAre(TextMatch{0, 3}, TextMatch{5, 3}));
}

TEST_F(TextSearchTest, WhereTheTextIsDividedMakesNoDifference) {
  const std::u16string_view text = u"cafe\u0301 <caf> CAFE\u0301\u0302";
  const std::vector<TextMatch> whole = FindAll(u"caf\u00E9", {text});
  ASSERT_THAT(whole, ElementsAre(TextMatch{0, 5}, TextMatch{12, 6}));
  for (std::size_t i = 0; i <= text.size(); ++i) {
    EXPECT_EQ(FindAll(u"caf\u00E9", {text.substr(0, i), u"", text.substr(i)}), whole);
  }
}

// A naive search would take the product of both lengths: minutes.
TEST_F(TextSearchTest, TextMadeToBeSlowTakesNoLonger) {
  const std::u16string text(1'000'000, u'a');
  const std::u16string words = std::u16string(50'000, u'a') + u'b';
  EXPECT_EQ(Find(words, text), std::nullopt);
}

}  // namespace
}  // namespace verlume
