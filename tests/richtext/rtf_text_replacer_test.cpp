#include "richtext/rtf_text_replacer.h"

#include <gmock/gmock.h>

namespace verlume::richtext {
namespace {

std::u16string Replaced(std::u16string_view rtf, std::u16string_view pattern,
                        std::u16string_view with) {
  const RtfReplacement list[] = {{pattern, std::u16string(with)}};
  return ReplaceInRtfText(rtf, list);
}

TEST(RtfTextReplacer, ReplacesEveryOccurrenceInTheText) {
  EXPECT_EQ(Replaced(u"{\\rtf1 a x b x}", u"x", u"yy"), u"{\\rtf1 a yy b yy}");
}

TEST(RtfTextReplacer, LeavesTextWithoutThePatternAlone) {
  const std::u16string rtf = u"{\\rtf1{\\fonttbl{\\f0 Arial;}}\\b one\\'e1\\u955?two\\par}";
  EXPECT_EQ(Replaced(rtf, u"/me", u"Bob"), rtf);
}

TEST(RtfTextReplacer, LeavesGroupsThatAreNotTextAlone) {
  for (const std::u16string_view hidden :
       {u"{\\fonttbl{\\f0\\fnil A/meB;}}", u"{\\colortbl ;/me;}", u"{\\*\\generator /me;}",
        u"{\\stylesheet{/me;}}", u"{\\info{\\title /me}}", u"{\\pict /me}"}) {
    const std::u16string rtf = u"{\\rtf1" + std::u16string(hidden) + u"/me}";
    EXPECT_EQ(Replaced(rtf, u"/me", u"Bob"), u"{\\rtf1" + std::u16string(hidden) + u"Bob}");
  }
}

TEST(RtfTextReplacer, LeavesWhatAReaderDoesNotShowAlone) {
  EXPECT_EQ(Replaced(u"{\\rtf1 {x\\pict x}{\\footer x}x}", u"x", u"y"),
            u"{\\rtf1 {y\\pict x}{\\footer x}y}");
  EXPECT_EQ(Replaced(u"{x\\fonttbl{\\f0 x;}}x", u"x", u"y"), u"{y\\fonttbl{\\f0 x;}}y");
  EXPECT_EQ(Replaced(u"\\uc2\\u955 xxx\\bin2 xxx", u"x", u"y"), u"\\uc2\\u955 xxy\\bin2 xxy");
}

TEST(RtfTextReplacer, TakesAStrayBackslashWithTheCharacterBehindIt) {
  EXPECT_EQ(Replaced(u"\\αxα\\α", u"x", u"y"), u"\\αyα\\α");
  EXPECT_EQ(Replaced(u"\\αxα\\α", u"α", u"y"), u"\\αxy\\α");
}

TEST(RtfTextReplacer, ReplacesBehindTheEndOfADocumentToo) {
  EXPECT_EQ(Replaced(u"{\\rtf1 x}x}{\\rtf1 x}", u"x", u"y"), u"{\\rtf1 y}y}{\\rtf1 y}");
}

TEST(RtfTextReplacer, CountsEscapedBracesAsCharactersOfAHiddenGroup) {
  const std::u16string table = u"{\\fonttbl{\\f0 A\\}x\\{B;}}";
  EXPECT_EQ(Replaced(u"{\\rtf1" + table + u"x}", u"x", u"y"), u"{\\rtf1" + table + u"y}");
}

TEST(RtfTextReplacer, LeavesControlWordsAndEscapesAlone) {
  EXPECT_EQ(Replaced(u"\\b\\fs20 b", u"b", u"c"), u"\\b\\fs20 c");
  EXPECT_EQ(Replaced(u"\\'e5 e5", u"e5", u"x"), u"\\'e5 x");
  EXPECT_EQ(Replaced(u"\\u-955? 955", u"955", u"x"), u"\\u-955? x");
  EXPECT_EQ(Replaced(u"\\\\b", u"b", u"c"), u"\\\\c");  // an escaped backslash, then text
}

TEST(RtfTextReplacer, FindsAPatternThatHoldsEscapes) {
  EXPECT_EQ(Replaced(u"{\\rtf1 $\\'f4$\\'f5}", u"$\\'f4", u"N"), u"{\\rtf1 N$\\'f5}");
}

TEST(RtfTextReplacer, KeepsAControlWordApartFromWhatComesBehindIt) {
  EXPECT_EQ(Replaced(u"\\b$l", u"$l", u"old"), u"\\b old");
  EXPECT_EQ(Replaced(u"\\fs20$l", u"$l", u"7"), u"\\fs20 7");
  EXPECT_EQ(Replaced(u"\\b $l", u"$l", u"old"), u"\\b old");
  EXPECT_EQ(Replaced(u"\\'e1$l", u"$l", u"old"), u"\\'e1old");
}

TEST(RtfTextReplacer, DoesNotSearchWhatItPutIn) {
  const RtfReplacement list[] = {{u"a", u"b"}, {u"b", u"a"}};
  EXPECT_EQ(ReplaceInRtfText(u"abab", list), u"baba");
}

TEST(RtfTextReplacer, TakesTheFirstOfSeveralPatternsThatFit) {
  const RtfReplacement list[] = {{u"ab", u"1"}, {u"a", u"2"}};
  EXPECT_EQ(ReplaceInRtfText(u"ab a", list), u"1 2");
}

TEST(RtfTextReplacer, ReplacesOnlyTheFirstWhereAsked) {
  const RtfReplacement list[] = {{u"x", u"y", true}};
  EXPECT_EQ(ReplaceInRtfText(u"x x x", list), u"y x x");
}

TEST(RtfTextReplacer, EndsWithDamagedMarkup) {
  for (const std::u16string_view rtf :
       {u"", u"{\\rtf1", u"\\", u"\\'", u"\\'e", u"{\\fonttbl{x", u"}x}}", u"{\\*\\x \\"}) {
    EXPECT_EQ(Replaced(rtf, u"never", u"y"), rtf);
  }
}

}  // namespace
}  // namespace verlume::richtext
