#include "platform_qt/text/look_count.h"

#include <gtest/gtest.h>

#include "platform_qt/text/formatted_text.h"

namespace verlume::qt {
namespace {

constexpr std::u16string_view kHebrew = u"\u05D0\u05D1";
constexpr std::u16string_view kHan = u"\u4E00\u4E01";

TEST(QtLookCount, TheScriptsThatShareTheirFontsAreOneLook) {
  LookCount count(9);
  const std::u16string_view text = u"abc, \u03B1\u03B2\u03B3 \u0434 1\u20132\u2026";
  EXPECT_EQ(count.LengthWithin(text, {}), text.size());
  EXPECT_EQ(count.Looks(), 1);
}

TEST(QtLookCount, EachOtherScriptIsOneOnceForEachFont) {
  LookCount count(9);
  const std::u16string text =
      std::u16string(kHebrew) + u" a " + std::u16string(kHan) + std::u16string(kHebrew);
  EXPECT_EQ(count.LengthWithin(text, {}), text.size());
  EXPECT_EQ(count.Looks(), 3);
  EXPECT_EQ(count.LengthWithin(text, {.bold = true}), text.size());
  EXPECT_EQ(count.Looks(), 6);
  EXPECT_EQ(count.LengthWithin(text, {.color = 255, .underline = true}), text.size());
  EXPECT_EQ(count.Looks(), 6) << "these need no other font";
}

TEST(QtLookCount, SignsOfAllScriptsAreCountedByTheirBlocks) {
  LookCount count(9);
  EXPECT_EQ(count.LengthWithin(u"\u2200\u2201\u2600\U0001F600\U0001F601", {}), 7);
  EXPECT_EQ(count.Looks(), 4);
}

TEST(QtLookCount, ALookTooManyEndsTheText) {
  LookCount count(2);
  EXPECT_EQ(count.LengthWithin(u"a \u05D0 \U00010480\u05D0", {}), 4) << "before a surrogate pair";
  EXPECT_EQ(count.LengthWithin(u"a", {.bold = true}), 0);
  EXPECT_EQ(count.LengthWithin(u"a \u05D0", {}), 3) << "no more looks than before";
}

TEST(QtLookCount, ADocumentIsCountedNoFurtherThanAsked) {
  richtext::Document document;
  for (std::uint16_t size = 1; size <= 9; ++size) {
    document.text += u'x';
    document.runs.push_back({1, {.halfPoints = size}});
  }
  EXPECT_EQ(CountLooks(document, 9), 9);
  EXPECT_EQ(CountLooks(document, 4), 5);
}

TEST(QtLookCount, APartHasNoMoreLooksThanAsked) {
  richtext::Document document;
  for (std::uint16_t size = 1; size <= 5; ++size) {
    document.text += u"ab";
    document.runs.push_back({2, {.halfPoints = size}});
  }
  document.text += std::u16string(kHan) + std::u16string(kHebrew);
  document.runs.push_back({4, {}});
  DocumentParts parts(document, Lines::Many);
  std::vector<QString> texts;
  while (!parts.IsDone()) {
    const FormattedText part = parts.Next(100, 2);
    qsizetype length = 0;
    for (const FormattedText::Piece& piece : part.pieces) length += piece.length;
    EXPECT_EQ(length, part.text.size());
    texts.push_back(part.text);
  }
  EXPECT_EQ(texts, (std::vector<QString>{"abab", "abab", "ab", "\u4E00\u4E01", "\u05D0\u05D1"}));
}

}  // namespace
}  // namespace verlume::qt
