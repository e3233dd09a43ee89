#include "richtext/rtf_limits.h"

#include <gtest/gtest.h>

#include "richtext/document_dump.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

std::string Repeat(std::string_view piece, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += piece;
  return text;
}

std::string Read(const std::string& rtf) {
  return Dump(ReadRtf(rtf));
}

std::string ReadBody(const std::string& body) {
  return Read("{\\rtf1{\\fonttbl{\\f0 A;}{\\f1 B;}}{\\colortbl;\\red1\\green2\\blue3;}\\f1\\fs20 " +
              body + "}");
}

TEST(RtfLimitsTest, GroupsBeyondTheDepthKeepTheirTextInTheFormatOfTheDeepestKept) {
  const std::size_t kept = limits::kMaxGroupDepth - 1;  // besides the document's own group
  EXPECT_EQ(ReadBody(Repeat("{", kept) + "\\b a{\\b0\\i\\fs40 b{c}}d" + Repeat("}", kept) + "e"),
            "B/1 10 auto b|abcd\nB/1 10 auto -|e\n");
  EXPECT_EQ(ReadBody(Repeat("{", kept - 1) + "\\b a{\\b0 b}c" + Repeat("}", kept - 1)),
            "B/1 10 auto b|a\nB/1 10 auto -|b\nB/1 10 auto b|c\n");
}

TEST(RtfLimitsTest, DestinationsBeyondTheDepthAreStillPassedOver) {
  const std::string open = Repeat("{", limits::kMaxGroupDepth + 10);
  const std::string close = Repeat("}", limits::kMaxGroupDepth + 10);
  EXPECT_EQ(ReadBody(open + "a{\\pict 00}{\\*\\x y}{\\colortbl;}{\\fonttbl{\\f0 C;}}b" + close),
            "B/1 10 auto -|ab\n");
}

TEST(RtfLimitsTest, UnicodeFallbacksBeyondTheDepthCostNoText) {
  const std::string open = Repeat("{", limits::kMaxGroupDepth + 10);
  const std::string close = Repeat("}", limits::kMaxGroupDepth + 10);
  EXPECT_EQ(ReadBody(open + "\\uc0\\u945 x\\uc9\\u946 yz" + close), "B/1 10 auto -|αxβyz\n");
}

TEST(RtfLimitsTest, LongControlWordsAreReadOver) {
  EXPECT_EQ(ReadBody("\\" + Repeat("b", limits::kMaxControlWordLength + 1) + "0 x"),
            "B/1 10 auto -|x\n");
  EXPECT_EQ(ReadBody("\\" + Repeat("b", kMegabyte) + "-12 x\\b" + Repeat("\\b", 9) + " y"),
            "B/1 10 auto -|x\nB/1 10 auto b|y\n");
  EXPECT_EQ(ReadBody("\\bbbbbbbbbbbbbbbbpar x\\parbbbbbbbbbbbbbbbb y"), "B/1 10 auto -|xy\n");
}

TEST(RtfLimitsTest, NumbersAreHeldWithinTheirRange) {
  const std::string huge = Repeat("9", 1'000);
  EXPECT_EQ(ReadBody("\\fs" + huge + " x"), "B/1 72 auto -|x\n");
  EXPECT_EQ(ReadBody("\\fs-" + huge + " x"), "B/1 1 auto -|x\n");
  EXPECT_EQ(ReadBody("\\f" + huge + "\\cf" + huge + " x\\f-" + huge + "\\cf-" + huge + " y"),
            "A/1 10 auto -|xy\n");
  EXPECT_EQ(ReadBody("\\u" + huge + " ?x\\u-" + huge + "?"), "B/1 10 auto -|\uFFFDx\uFFFD\n");
  EXPECT_EQ(ReadBody("\\b" + huge + " x"), "B/1 10 auto b|x\n");
  EXPECT_EQ(ReadBody("x\\bin-" + huge + " y\\bin" + huge + " z"), "B/1 10 auto -|xy\n");
}

TEST(RtfLimitsTest, SizesShowBetweenOneAndSeventyTwoPoints) {
  EXPECT_EQ(ReadBody("\\fs0 a\\fs1 b\\fs2 c"), "B/1 1 auto -|abc\n");
  EXPECT_EQ(ReadBody("\\fs3 a\\fs143 b"), "B/1 1.5 auto -|a\nB/1 71.5 auto -|b\n");
  EXPECT_EQ(ReadBody("\\fs144 a\\fs145 b\\fs9999 c"), "B/1 72 auto -|abc\n");
  EXPECT_EQ(ReadBody("\\fs a"), "B/1 12 auto -|a\n");
}

TEST(RtfLimitsTest, FontsBeyondTheLimitShowInTheDefaultFont) {
  std::string fonts;
  const std::size_t last = limits::kMaxFonts - 1;
  for (std::size_t i = 0; i <= last + 1; ++i) {
    const std::string number = std::to_string(i);
    fonts += "{\\f" + number + " F" + number + ";}";
  }
  EXPECT_EQ(Read("{\\rtf1\\deff3{\\fonttbl" + fonts + "}\\f" + std::to_string(last) + " a\\f" +
                 std::to_string(last + 1) + " b}"),
            "F" + std::to_string(last) + "/1 12 auto -|a\nF3/1 12 auto -|b\n");
}

TEST(RtfLimitsTest, FontNumbersBeyondTheLimitShowInTheDefaultFont) {
  EXPECT_EQ(Read("{\\rtf1{\\fonttbl{\\f0 A;}{\\f32767 B;}{\\f32768 C;}{\\f-1 D;}}"
                 "\\f32767 a\\f32768 b\\f-1 c}"),
            "B/1 12 auto -|a\nA/1 12 auto -|bc\n");
}

TEST(RtfLimitsTest, LongFontNamesAreCut) {
  EXPECT_EQ(Read("{\\rtf1{\\fonttbl{\\f0 " + Repeat("n", limits::kMaxFontNameLength + 1) + ";}}x}"),
            Repeat("n", limits::kMaxFontNameLength) + "/1 12 auto -|x\n");
}

TEST(RtfLimitsTest, ColorsBeyondTheLimitAreAutomatic) {
  const std::string colors = Repeat("\\red1;", limits::kMaxColors + 1);
  EXPECT_EQ(Read("{\\rtf1{\\colortbl" + colors + "}\\cf" + std::to_string(limits::kMaxColors - 1) +
                 " a\\cf" + std::to_string(limits::kMaxColors) + " b}"),
            "/161 12 #010000 -|a\n/161 12 auto -|b\n");
}

TEST(RtfLimitsTest, FallbacksAreNoLongerThanTheLimit) {
  const std::string longest = Repeat("?", limits::kMaxFallbackCharacters);
  EXPECT_EQ(ReadBody("\\uc9999\\u945 " + longest + "x"), "B/1 10 auto -|αx\n");
  EXPECT_EQ(ReadBody("\\uc-1\\u945 x"), "B/1 10 auto -|αx\n");
}

// Anything worse than linear time would not come to an end here.
TEST(RtfLimitsTest, MegabytesOfOneThingAreRead) {
  EXPECT_EQ(ReadBody(Repeat("{", kMegabyte) + "x"), "B/1 10 auto -|x\n");
  EXPECT_EQ(ReadBody(Repeat("{\\*\\x", kMegabyte / 5) + "x"), "");
  EXPECT_EQ(ReadBody(Repeat("\\*", kMegabyte / 2) + "x"), "B/1 10 auto -|x\n");
  EXPECT_EQ(ReadBody(Repeat("\\'z", kMegabyte / 3)),
            "B/1 10 auto -|" + Repeat("z", kMegabyte / 3) + "\n");
  EXPECT_EQ(ReadRtf("{\\rtf1\\ansicpg65001 " + Repeat("\xF0", kMegabyte) + "}").text.size(),
            kMegabyte);
  EXPECT_EQ(ReadRtf("{\\rtf1 " + Repeat("\\b a\\b0 b", kMegabyte / 9) + "}").runs.size(),
            2 * (kMegabyte / 9));
  EXPECT_EQ(Read("{\\rtf1{\\fonttbl" + Repeat("{\\f32767 ", kMegabyte / 9) + "}x}"), "");
}

}  // namespace
}  // namespace verlume::richtext
