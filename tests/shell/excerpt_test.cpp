#include "shell/excerpt.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

TEST(ExcerptTest, AShortTextIsWhole) {
  EXPECT_EQ(Excerpt(u"", 10), u"");
  EXPECT_EQ(Excerpt(u"καλημέρα", 8), u"καλημέρα");
}

TEST(ExcerptTest, ALongTextIsCutAndSaysSo) {
  EXPECT_EQ(Excerpt(u"καλημέρα", 7), u"καλημέ…");
  EXPECT_EQ(Excerpt(std::u16string(1'000'000, u'a'), 200).size(), 200u);
}

TEST(ExcerptTest, NoCharacterIsCutInTwo) {
  EXPECT_EQ(Excerpt(u"ab\U0001F600\U0001F600", 5), u"ab\U0001F600…");
  EXPECT_EQ(Excerpt(u"abc\U0001F600d", 5), u"abc…");
}

TEST(ExcerptTest, ParagraphsBecomeOneLine) {
  EXPECT_EQ(Excerpt(u"\r\n one\r\n\r\ntwo\tthree \u2029", 50), u"one two three");
}

TEST(ExcerptTest, ControlAndDirectionCharactersAreLeftOut) {
  EXPECT_EQ(Excerpt(u"a\u202Eb\u2066c\u200Bd\x07\x1B[1me\xFEFF", 50), u"abcd[1me");
  EXPECT_EQ(Excerpt(std::u16string(1, 0xD800) + u"x", 50), u"x");
}

TEST(ExcerptTest, OfInvisibleTextOnlyTheBeginningIsRead) {
  const std::u16string invisible(1'000, u'\u200B');
  EXPECT_EQ(Excerpt(invisible + u"hidden", 10), u"…");
}

}  // namespace
}  // namespace verlume
