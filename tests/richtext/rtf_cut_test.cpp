#include "richtext/rtf_cut.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "richtext/document_dump.h"
#include "richtext/document_join.h"
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

TEST(RtfCut, ACharacterStaysWithWhatStandsForIt) {
  ExpectTheSameWhereverCut(kHeader + R"(a\u945?\u946\'e2{\uc2\u947 ??\u948\'20\emdash x}y})");
  ExpectTheSameWhereverCut(kHeader + R"(a\uc0\u945 \u946 b{\uc3\u947 \bin2 }}?!{\uc9 c}}d})");
}

TEST(RtfCut, PairsOfSurrogatesStayTogether) {
  ExpectTheSameWhereverCut(kHeader + R"(a\u-10179?\u-8704?b\uc0\u-10179\u-8704 c})");
  const auto [before, behind] = Texts(R"(a\u-10179?\u-8704?b})", 3);
  EXPECT_EQ(before, u"a\xD83D\xDE00");
  EXPECT_EQ(behind, u"b");
}

TEST(RtfCut, TheBytesOfACharacterStayTogether) {
  ExpectTheSameWhereverCut(R"({\rtf1\ansi\ansicpg65001 a\'ce\'b1\'e2\'82\'acb\'f0\'9f\'98\'80c})");
  ExpectTheSameWhereverCut("{\\rtf1\\ansi\\ansicpg65001 a\xCE\xB1\xE2\x82\xAC\xCE\xB2 b}");
  EXPECT_EQ(Texts(R"(\'80\'80\'80})", 1).first.size(), 1u) << "bytes of no character";
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

TEST(RtfCut, LongTablesAreLeftOut) {
  std::string fonts = R"({\fonttbl)";
  while (fonts.size() < 65'536) fonts += R"({\f1 Some font;})";
  const std::string rtf = R"({\rtf1)" + fonts + R"(}{\colortbl ;}\f1 text})";
  const CutDocument cut = CutRtf(rtf, rtf.find("text"));
  EXPECT_EQ(cut.behind, R"({\rtf1 {\colortbl ;}\f1 text})");
}

TEST(RtfCut, TheOpeningStaysShort) {
  std::string many = kHeader;
  for (int i = 0; i < 10'000; ++i) many += R"({\b x}\fs)" + std::to_string(i) + R"(\cf1 x)";
  many += std::string(10'000, '{') + R"(\b x)";
  EXPECT_LT(CutRtf(many, many.size()).behind.size(), 1'024u);
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
