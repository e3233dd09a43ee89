#include "richtext/rtf_cut.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "richtext/document_dump.h"
#include "richtext/document_join.h"
#include "richtext/rtf_limits.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

using namespace std::string_literals;

const std::string kHeader = R"({\rtf1\ansi\ansicpg1253\deff1{\fonttbl{\f0 A;}{\f1\fcharset161 B;}})"
                            R"({\colortbl;\red1;}\uc1\cf1\f0\fs20 )";

// What two documents show together, but for line breaks at their border.
Document Join(const CutDocument& cut) {
  Document joined = ReadRtf(cut.before);
  Append(joined, ReadRtf(cut.behind));
  return joined;
}

void ExpectTheSameWhereverCut(const std::string& rtf) {
  const Document whole = ReadRtf(rtf);
  for (std::size_t length = 0; length < rtf.size(); ++length) {
    const CutDocument cut = CutRtf(rtf, length);
    const Document joined = Join(cut);
    ASSERT_EQ(joined.text, whole.text) << cut.before << "\n" << cut.behind;
    ASSERT_EQ(Dump(joined), Dump(whole)) << cut.before << "\n" << cut.behind;
  }
}

// The texts before and behind the cut at so many bytes behind the header.
std::pair<std::u16string, std::u16string> Texts(const std::string& content, std::size_t length) {
  const CutDocument cut = CutRtf(kHeader + content, kHeader.size() + length);
  return {ReadRtf(cut.before).text, ReadRtf(cut.behind).text};
}

TEST(RtfCut, BothShowWhatTheDocumentShows) {
  ExpectTheSameWhereverCut(kHeader + R"(plain {\b bold\i\f1  and more} \'e1\'e2\cf0 red\tab x})");
  ExpectTheSameWhereverCut(kHeader + R"(a\~b\{c\\d\emdash e\line f)"s + "\r\ng}");
  ExpectTheSameWhereverCut(kHeader + R"(x{\pict 00{\x}11}{\*\y z\par q}{\fs30 w\plain v}u})");
  ExpectTheSameWhereverCut(kHeader + R"({\dbch\ab x\loch\ul y}\ulnone z{\strike\i0 s}t})");
  ExpectTheSameWhereverCut(R"({\rtf1\ansi a{\b b}{{{c}}}})");
}

TEST(RtfCut, ATableBeginsWhereItsWordStands) {
  ExpectTheSameWhereverCut(R"({\rtf1 {\tab \fonttbl{\f0 A;}}hello world)");
}

TEST(RtfCut, WordsOfTheDocumentSayNothingInsideATable) {
  ExpectTheSameWhereverCut(R"({\rtf1{\colortbl\ansicpg65001 ;}a\'ce\'b1b and more text})");
}

TEST(RtfCut, ACharacterStaysWithWhatStandsForIt) {
  ExpectTheSameWhereverCut(kHeader + R"(a\u945?\u946\'e2{\uc2\u947 ??\u948\'20\emdash x}y})");
  ExpectTheSameWhereverCut(kHeader + R"(a\uc0\u945 \u946 b{\uc3\u947 \bin2 }}?!{\uc9 c}}d})");
}

TEST(RtfCut, PairsOfSurrogatesStayTogether) {
  ExpectTheSameWhereverCut(kHeader + R"(a\u-10179?\u-8704?b\uc0\u-10179\u-8704 c})");
  const auto [before, behind] = Texts(R"(a\u-10179?\u-8704?b and more text})", 3);
  EXPECT_EQ(before, u"a\xD83D\xDE00");
  EXPECT_EQ(behind, u"b and more text");
}

TEST(RtfCut, TheBytesOfACharacterStayTogether) {
  ExpectTheSameWhereverCut(R"({\rtf1\ansi\ansicpg65001 a\'ce\'b1\'e2\'82\'acb\'f0\'9f\'98\'80c})");
  ExpectTheSameWhereverCut("{\\rtf1\\ansi\\ansicpg65001 a\xCE\xB1\xE2\x82\xAC\xCE\xB2 b}");
}

TEST(RtfCut, BytesThatFormNoCharacterDoNotKeepTogether) {
  std::string bytes;
  for (int i = 0; i < 1'000; ++i) bytes += R"(\'80)";
  EXPECT_LT(Texts(bytes + "}", 1).first.size(), 100u);
}

TEST(RtfCut, DataIsNoText) {
  ExpectTheSameWhereverCut(kHeader + R"(x\bin7 {}\'{}\y{\bin2 }}z}w})");
}

TEST(RtfCut, DataThatGoesOnGoesOnBehindTheCut) {
  const CutDocument cut = CutRtf(kHeader + R"(x\bin10 {{{)", kHeader.size() + 5);
  EXPECT_TRUE(cut.behind.ends_with(R"(\bin7 )"));
  EXPECT_EQ(ReadRtf(cut.behind + "{{{{{{{y}").text, u"y");
  EXPECT_EQ(ReadRtf(cut.before).text, u"x");
}

TEST(RtfCut, AWordWithoutEndIsNotKept) {
  for (const std::string& letter : {"x"s, "b0"s}) {
    std::string word = "\\" + letter;
    word.resize(100'000, letter.back());
    const CutDocument cut = CutRtf(kHeader + "a" + word, kHeader.size() + 1'000);
    EXPECT_EQ(ReadRtf(cut.before).text, u"a");
    EXPECT_LT(cut.behind.size(), kHeader.size() + 100);
    EXPECT_EQ(ReadRtf(cut.behind + letter.back() + " y}").text, u"y");
  }
}

TEST(RtfCut, WhatIsNotShownIsNotShownBehindTheCutEither) {
  for (const std::string& group : {R"(a{\pict 00)"s, R"(a{\*\word {00)"s}) {
    const CutDocument cut = CutRtf(kHeader + group, kHeader.size() + group.size() - 1);
    EXPECT_EQ(ReadRtf(cut.before).text, u"a");
    EXPECT_EQ(ReadRtf(cut.behind + "0000").text, u"");
  }
}

TEST(RtfCut, BothHaveAllTheirBraces) {
  const CutDocument cut = CutRtf(kHeader + R"({\b {\i ab}}c})", kHeader.size() + 8);
  EXPECT_EQ(std::ranges::count(cut.before, '{'), std::ranges::count(cut.before, '}'));
  EXPECT_EQ(std::ranges::count(cut.behind, '{'), std::ranges::count(cut.behind, '}'));
}

TEST(RtfCut, TablesAreKeptHoweverTheyAreWritten) {
  std::string fonts = R"({\fonttbl)";
  for (int i = 0; i < 10'000; ++i) fonts += R"({\f)" + std::to_string(i) + " Some font;}";
  std::string colors = R"({\colortbl )";
  for (int i = 0; i < 10'000; ++i) colors += R"(\red)" + std::to_string(i % 256) + ";";
  const std::string rtf = R"({\rtf1)" + fonts + "}" + colors + R"(}\f1\cf7 text \f400\cf255 more})";
  const CutDocument cut = CutRtf(rtf, rtf.find("text"));
  EXPECT_EQ(Dump(Join(cut)), Dump(ReadRtf(rtf)));
  EXPECT_LT(cut.behind.size(), 512u * 1'024);
}

TEST(RtfCut, AFontThatIsDeclaredAgainStaysWhatItWas) {
  ExpectTheSameWhereverCut(R"({\rtf1{\fonttbl\f5 A;}\f5 a{b{\fonttbl{\f5 B;}}c{\f5 d}e})"
                           R"({\f7 f{\fonttbl\f5 C;}\f5 g}h{\f6\fs40 i\f5 j}k})");
}

TEST(RtfCut, ATableIsCutAnywhere) {
  ExpectTheSameWhereverCut(R"({\rtf1{\fonttbl{\f0\fcharset161\cpg1251 A\'e1\{b;}{\f3 \u945?})"
                           R"(\f4{\*\panose 02}Some font;}a\f0 \'e1{\b\f3 c{\f4 d}e})"
                           R"({\colortbl;\red1\green2;\blue3;}\cf1 f\cf2 g\cf9 h})");
  ExpectTheSameWhereverCut(R"({\rtf1{\fonttbl\f0 A{\uc2\colortbl\red7;\fonttbl\uc3 b;}\f1 B}})"
                           R"({\colortbl{\red1\fonttbl\f1\u945 ??C;}\green2}\f1\cf1 a;\f0 b})");
}

TEST(RtfCut, AFontOfTheTextBeforeMayBeDeclaredBehindTheCut) {
  ExpectTheSameWhereverCut(R"({\rtf1 a{{b\pict 00}c{\fonttbl\f0 A;\f2 B;}d}\deff2 e\deff9 f})");
}

TEST(RtfCut, AStrayBackslashStaysWithWhatFollows) {
  ExpectTheSameWhereverCut(kHeader + "a\\\xE1z{b\\\xE2\\\xE3}c and more text}");
}

TEST(RtfCut, TheCodePageStays) {
  for (const std::string& page : {R"(\pc )"s, R"(\pca )"s, R"(\mac )"s, R"(\ansicpg1253 )"s}) {
    ExpectTheSameWhereverCut(R"({\rtf1 \'e0{)" + page + R"(\'e0}\'e0 and more text})");
    ExpectTheSameWhereverCut(R"({\rtf1\ansicpg65001 \'e0{)" + page +
                             R"(\'e0}\'ce\'b1\ansicpg1 \'e0 and more text})");
  }
}

TEST(RtfCut, TheOpeningStaysShort) {
  std::string many = kHeader;
  for (int i = 0; i < 10'000; ++i) many += R"({\b x}\fs)" + std::to_string(i) + R"(\cf1 x)";
  many += R"(\b x)";
  EXPECT_LT(CutRtf(many, many.size()).behind.size(), 1'024u);
}

TEST(RtfCut, DeepGroupsGoOnBehindTheCut) {
  const std::size_t depth = 10'000;
  const std::string open = std::string(depth, '{') + R"(\b a)";
  const std::string close = std::string(depth - 1, '}') + R"(c\i d}e})";
  for (const std::string& inside : {""s, R"(\uc0\u945 \b0)"s, R"({\pict {{)"s}) {
    const std::string rtf = kHeader + open + inside + close;
    for (const std::size_t length : {depth / 2, depth + 200, depth + 5'000}) {
      const CutDocument cut = CutRtf(rtf, length);
      EXPECT_EQ(Dump(Join(cut)), Dump(ReadRtf(rtf))) << inside << length;
    }
  }
}

TEST(RtfCut, TablesAreKeptInTheDeepestGroup) {
  for (const std::size_t depth : {limits::kMaxGroupDepth - 2, limits::kMaxGroupDepth - 1}) {
    const std::string rtf = R"({\rtf1{\fonttbl{\f0 A;}{\f1 B;}{\f2 C;}})" +
                            std::string(depth, '{') + R"(\f1 a\f2 b\f0 c and more text)";
    const CutDocument cut = CutRtf(rtf, rtf.find("a\\f2") + 1);
    EXPECT_EQ(Dump(Join(cut)), Dump(ReadRtf(rtf))) << cut.behind;
  }
}

TEST(RtfCut, GroupsDeeperThanTheLimitAreLeftOut) {
  const std::string rtf = kHeader + std::string(4 * kDeepestCut, '{');
  EXPECT_LT(CutRtf(rtf, rtf.size()).behind.size(), kDeepestCut + 2'048);
  const std::string skipped = kHeader + R"({\pict )" + std::string(4 * kDeepestCut, '{');
  EXPECT_LT(CutRtf(skipped, skipped.size()).behind.size(), kDeepestCut + 2'048);
}

TEST(RtfCut, AFallbackThatHasNoEndGoesOnBehindTheCut) {
  for (const std::string& nothing : {"\r\n"s, R"(\!)"s, R"(\bin1 x)"s}) {
    std::string rtf = kHeader + R"(a\uc9\u945 ?)";
    for (int i = 0; i < 5; ++i) rtf += nothing;
    const CutDocument cut = CutRtf(rtf, kHeader.size() + 12);
    const std::string more = "123456789b}";
    EXPECT_EQ(ReadRtf(cut.before).text + ReadRtf(cut.behind + more).text, ReadRtf(rtf + more).text);
  }
}

TEST(RtfCut, NothingIsBehindTheEndOfTheDocument) {
  const CutDocument cut = CutRtf(R"({\rtf1 a}b)", 9);
  EXPECT_EQ(cut.before, R"({\rtf1 a}b)");
  EXPECT_EQ(cut.behind, "");
}

// Wherever the stream was when it was cut, and however it goes on.
TEST(RtfCut, WhatComesLaterCompletesWhatIsBehindTheCut) {
  const std::string rtf = kHeader + "a\\b-0012 b\\u-945 ?{\\*\r\n\\fonttbl{\\f7 X;}}\\'e1" +
                          "\\bin0012 {{{{{{{{{{{{c{\\pict\\bin3 }}}}d\\emdash  e\\f7\\-f}";
  const std::u16string whole = ReadRtf(rtf).text;
  for (std::size_t arrived = kHeader.size(); arrived < rtf.size(); ++arrived) {
    for (std::size_t length = kHeader.size(); length <= arrived; ++length) {
      const CutDocument cut = CutRtf(std::string_view(rtf).substr(0, arrived), length);
      const std::string behind = cut.behind + rtf.substr(arrived);
      ASSERT_EQ(ReadRtf(cut.before).text + ReadRtf(behind).text, whole) << arrived << "/" << length;
    }
  }
}

TEST(RtfCut, ATokenThatTheEndCutsOffIsKept) {
  for (const std::string& token : {R"(\)"s, R"(\')"s, R"(\'e)"s, R"({\*)"s, R"({\*\)"s, R"(\u)"s}) {
    for (std::size_t length = 0; length < 20; ++length) {
      const CutDocument cut = CutRtf(R"({\rtf1 some)" + token, length);
      EXPECT_EQ(ReadRtf(cut.before).text + ReadRtf(cut.behind).text, u"some") << cut.behind;
    }
  }
}

}  // namespace
}  // namespace verlume::richtext
