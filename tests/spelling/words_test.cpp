#include "spelling/words.h"

#include <gmock/gmock.h>

#include <string>

namespace verlume::spelling {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::u16string> Of(std::u16string_view text) {
  std::vector<std::u16string> words;
  for (const Word& word : WordsOf(text)) words.emplace_back(text.substr(word.start, word.length));
  return words;
}

TEST(SpellingWords, ArePartedByBlanksAndPunctuation) {
  EXPECT_THAT(Of(u"well, well-known (so to say); \"end\"."),
              ElementsAre(u"well", u"well", u"known", u"so", u"to", u"say", u"end"));
  EXPECT_THAT(Of(u"«Καλημέρα», τι κάνεις;"), ElementsAre(u"Καλημέρα", u"τι", u"κάνεις"));
  EXPECT_THAT(Of(u"wait...what"), ElementsAre(u"wait", u"what"));
}

TEST(SpellingWords, EachHasItsScript) {
  EXPECT_EQ(WordsOf(u"ναι yes"), (std::vector<Word>{{0, 3, Script::Greek}, {4, 3, Script::Latin}}));
}

TEST(SpellingWords, AContractionIsOneInEnglishAndNoneInGreek) {
  EXPECT_THAT(Of(u"don't won’t 'so' dogs'"), ElementsAre(u"don't", u"won’t", u"so", u"dogs"));
  EXPECT_THAT(Of(u"απ' όλα, σ’αυτό"), ElementsAre(u"όλα", u"αυτό"));
}

TEST(SpellingWords, AnAccentOfItsOwnBelongsToItsLetter) {
  EXPECT_THAT(Of(u"cafe\u0301 και\u0301"), ElementsAre(u"cafe\u0301", u"και\u0301"));
}

TEST(SpellingWords, AddressesAndPlaceholdersAreNone) {
  for (const auto text :
       {u"ann@example.org", u"www.example.org", u"example.org.", u"/home/ann", u"C:\\file",
        u"http://a", u"(e.g.)", u"$l", u"$τ", u"file_name", u"#tag"}) {
    EXPECT_THAT(Of(text), IsEmpty());
  }
}

TEST(SpellingWords, ThoseWithDigitsOfCapitalsOrOfOneLetterAreNone) {
  for (const auto text : {u"1st", u"a4b", u"NATO", u"ΟΤΕ", u"ΏΡΑ", u"I", u"ή", u"É"}) {
    EXPECT_THAT(Of(text), IsEmpty());
  }
  EXPECT_THAT(Of(u"Nato Ώρα"), ElementsAre(u"Nato", u"Ώρα"));
}

TEST(SpellingWords, ThoseOfTwoScriptsOrOfAnotherAreNone) {
  for (const auto text : {u"καλαok", u"привет", u"日本語", u"hi😀"})
    EXPECT_THAT(Of(text), IsEmpty());
}

TEST(SpellingWords, LongOnesAreNone) {
  EXPECT_EQ(Of(std::u16string(kLongestWord, u'a')).size(), 1u);
  EXPECT_THAT(Of(std::u16string(kLongestWord + 1, u'a')), IsEmpty());
  EXPECT_THAT(Of(std::u16string(4096, u'a')), IsEmpty());
}

TEST(SpellingWords, OfACommandThereAreNone) {
  EXPECT_EQ(StartOfWords(u"hello"), 0u);
  for (const auto line : {u"/", u"/call bobshost 4000", u"/nick Anna", u"/mew so"}) {
    EXPECT_EQ(StartOfWords(line), std::u16string_view(line).size());
  }
  EXPECT_EQ(StartOfWords(u"/me waves"), 3u);
  EXPECT_EQ(StartOfWords(u"/Me"), 3u);
  EXPECT_EQ(StartOfWords(u"/εΓΏ χαιρετά"), 4u);
  EXPECT_EQ(StartOfWords(u""), 0u);
}

}  // namespace
}  // namespace verlume::spelling
