#include "stream/arrival_assembler.h"

#include <gtest/gtest.h>

#include <vector>

#include "richtext/rtf_reader.h"

namespace verlume::stream {
namespace {

using namespace std::string_literals;

using Arrival = std::optional<std::string>;

const std::string kMarker = '\0' + std::string(67, 'm') + '\0';

// Adds and takes at one moment.
Arrival Read(ArrivalAssembler& assembler, std::string_view bytes, std::int64_t now = 0) {
  assembler.Add(bytes, now);
  return assembler.Take(now);
}

// The text comes out whole although its bytes come one by one; nothing comes out earlier.
void ExpectHeldTogether(const std::string& text) {
  ArrivalAssembler assembler;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    EXPECT_EQ(Read(assembler, text.substr(i, 1)), std::nullopt) << i << " of " << text;
  }
  EXPECT_EQ(Read(assembler, text.substr(text.size() - 1)), Arrival(text)) << text;
}

TEST(ArrivalAssembler, NothingComesOutOfNothing) {
  ArrivalAssembler assembler;
  EXPECT_EQ(assembler.Take(0), std::nullopt);
  EXPECT_EQ(assembler.TakeAll(), std::nullopt);
  EXPECT_EQ(assembler.Deadline(), std::nullopt);
}

TEST(ArrivalAssembler, OtherTextIsReadyAtOnce) {
  for (const std::string& text : {"hello"s, "{x"s, "{\\rtx"s, "}"s, "\\rtf"s, "\0\0"s, "\0a\0"s}) {
    ArrivalAssembler assembler;
    EXPECT_EQ(Read(assembler, text), Arrival(text));
  }
}

TEST(ArrivalAssembler, HandshakesAreReadyAtOnce) {
  for (const std::string& kind : {"S"s, "C"s, "N"s}) {
    ArrivalAssembler assembler;
    const std::string message = kMarker + kind + "Anna" + '\0';
    EXPECT_EQ(Read(assembler, message), Arrival(message));
  }
}

TEST(ArrivalAssembler, DocumentsAreHeldUntilTheirBracesAreBalanced) {
  ExpectHeldTogether(R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}hello\par})");
  ExpectHeldTogether(R"({\rtf})");
}

TEST(ArrivalAssembler, DocumentsBehindTheMarkerAreHeldToo) {
  ExpectHeldTogether(kMarker + R"(M{\rtf1 {\b Anna} waves})");
}

TEST(ArrivalAssembler, EscapedBracesAreNoBraces) {
  ExpectHeldTogether(R"({\rtf1 \}\}\{ a \\})");
  ExpectHeldTogether(R"({\rtf1 \\\}\'7d\'7b})");
}

TEST(ArrivalAssembler, BinaryDataIsNoText) {
  ExpectHeldTogether(R"({\rtf1{\bin3 }}}}})");
  ExpectHeldTogether(R"({\rtf1{\bin2\}}})");
  ExpectHeldTogether("{\\rtf1{\\bin1 }}}");
}

TEST(ArrivalAssembler, OtherWordsAndEmptyDataHoldNoBinaryData) {
  ExpectHeldTogether(R"({\rtf1{\bin0 }})");
  ExpectHeldTogether(R"({\rtf1{\bin }})");
  ExpectHeldTogether(R"({\rtf1{\bin-3 }})");
  ExpectHeldTogether(R"({\rtf1{\bins3 }})");
  ExpectHeldTogether(R"({\rtf1{\bi3 }})");
  ExpectHeldTogether(R"({\rtf1{\b3 }})");
  ExpectHeldTogether(R"({\rtf1{\abin3 }})");
}

TEST(ArrivalAssembler, ADataLengthBeyondAllBoundsIsHarmless) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, R"({\rtf1\bin99999999999999999999999999 }})"), std::nullopt);
  EXPECT_NE(assembler.Take(ArrivalAssembler::kPatience), std::nullopt);
}

TEST(ArrivalAssembler, WhatFollowsADocumentInTheSameReadBelongsToIt) {
  for (const std::string& tail : {"tail"s, "\r\n\0"s, "{\\rtf1 b}"s, kMarker + "M{\\rtf1 b}"}) {
    ArrivalAssembler assembler;
    EXPECT_EQ(Read(assembler, R"({\rtf1 a})" + tail), Arrival(R"({\rtf1 a})" + tail));
  }
}

TEST(ArrivalAssembler, ASecondDocumentInTheSameReadIsNotTorn) {
  for (const std::string& between : {""s, "\r\n"s, "\r\n\0"s}) {
    ArrivalAssembler assembler;
    const std::string first = R"({\rtf1 a})" + between;
    EXPECT_EQ(Read(assembler, first + R"({\rtf1 {b)"), Arrival(first));
    EXPECT_EQ(Read(assembler, "}}{\\"), Arrival(R"({\rtf1 {b}})"));
    EXPECT_EQ(Read(assembler, "rtf1 c}"), Arrival(R"({\rtf1 c})"));
  }
}

TEST(ArrivalAssembler, AMessageBehindADocumentIsNotTorn) {
  ArrivalAssembler assembler;
  const std::string next = kMarker + R"(M{\rtf1 {b}})";
  EXPECT_EQ(Read(assembler, R"({\rtf1 a})" + next.substr(0, 75)), Arrival(R"({\rtf1 a})"));
  EXPECT_EQ(Read(assembler, next.substr(75)), Arrival(next));
}

// However a flood is cut, each of its documents comes out whole, and soon.
TEST(ArrivalAssembler, NoDocumentWaitsForThoseBehindIt) {
  const std::string document = R"({\rtf1 {a} line\par})";
  std::string flood;
  for (int i = 0; i < 1'000; ++i) flood += document;
  for (const std::size_t length : {1u, 7u, 23u, 24u, 25u, 1'000u}) {
    ArrivalAssembler assembler;
    std::string out;
    for (std::size_t at = 0; at < flood.size(); at += length) {
      const Arrival arrival = Read(assembler, std::string_view(flood).substr(at, length));
      out += arrival.value_or("");
      ASSERT_EQ(out.size() % document.size(), 0u);
      ASSERT_LT(std::min(at + length, flood.size()) - out.size(), document.size());
    }
    EXPECT_TRUE(out == flood) << length;
  }
}

TEST(ArrivalAssembler, ADocumentWaitsTwentySecondsAfterItsLastByte) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, R"({\rtf1 a)", 1000), std::nullopt);
  EXPECT_EQ(assembler.Deadline(), 21'000);
  EXPECT_EQ(Read(assembler, "b", 2500), std::nullopt);
  EXPECT_EQ(assembler.Deadline(), 22'500);
  EXPECT_EQ(assembler.Take(22'499), std::nullopt);
  EXPECT_EQ(assembler.Take(22'500), Arrival(R"({\rtf1 ab)"));
  EXPECT_EQ(assembler.Deadline(), std::nullopt);
}

TEST(ArrivalAssembler, TheRestOfAnOverdueDocumentIsReadyAtOnce) {
  ArrivalAssembler assembler;
  assembler.Add(R"({\rtf1 a)", 0);
  ASSERT_NE(assembler.Take(20'000), std::nullopt);
  EXPECT_EQ(Read(assembler, "b}", 20'001), Arrival("b}"));
}

TEST(ArrivalAssembler, ABeginningWaitsTwentySecondsToo) {
  for (const std::string& begun : {"{"s, "{\\rt"s, "\0mm"s, kMarker, kMarker + "M"}) {
    ArrivalAssembler assembler;
    EXPECT_EQ(Read(assembler, begun), std::nullopt);
    EXPECT_EQ(assembler.Take(19'999), std::nullopt);
    EXPECT_EQ(assembler.Take(20'000), Arrival(begun));
  }
}

TEST(ArrivalAssembler, ABeginningThatTurnsOutOtherwiseIsReadyAtOnce) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, "{\\"), std::nullopt);
  EXPECT_EQ(Read(assembler, "x"), Arrival("{\\x"));
}

// All that comes out of a text that comes in reads of 256 KiB.
std::vector<std::string> Pieces(const std::string& text) {
  constexpr std::size_t kRead = 256 << 10;
  ArrivalAssembler assembler;
  std::vector<std::string> pieces;
  for (std::size_t at = 0; at < text.size(); at += kRead) {
    const Arrival piece = Read(assembler, std::string_view(text).substr(at, kRead));
    if (piece) pieces.push_back(*piece);
  }
  if (const Arrival piece = assembler.TakeAll()) pieces.push_back(*piece);
  return pieces;
}

std::string Repeat(std::string_view part, std::size_t size) {
  std::string text;
  while (text.size() < size) text += part;
  return text;
}

TEST(ArrivalAssembler, AtMostFourMebibytesOfADocumentWait) {
  ArrivalAssembler assembler;
  const std::string begun = R"({\rtf1 )" + std::string(ArrivalAssembler::kLargest - 8, 'x');
  EXPECT_EQ(Read(assembler, begun), std::nullopt);
  const Arrival piece = Read(assembler, "y");
  ASSERT_TRUE(piece);
  EXPECT_LT(piece->size(), begun.size());
  const Arrival rest = Read(assembler, "the rest}");
  ASSERT_TRUE(rest);
  EXPECT_TRUE(rest->ends_with("ythe rest}"));
  EXPECT_EQ(Read(assembler, R"({\rtf1 next})"), Arrival(R"({\rtf1 next})"));
}

TEST(ArrivalAssembler, EachPieceOfALongDocumentIsADocument) {
  const std::string content = Repeat(R"(some {\b words\'e1} and \u945?\fs20 more, )", 10 << 20);
  const std::string document = R"({\rtf1\ansi{\fonttbl{\f0 Some font;}}\f0 )" + content + "}";
  const std::vector<std::string> pieces = Pieces(document);
  ASSERT_GE(pieces.size(), 3u);
  std::u16string text;
  for (const std::string& piece : pieces) {
    EXPECT_TRUE(piece.starts_with(R"({\rtf1)"));
    EXPECT_TRUE(piece.ends_with('}'));
    EXPECT_LE(piece.size(), ArrivalAssembler::kLargest);
    const richtext::Document shown = richtext::ReadRtf(piece);
    EXPECT_EQ(shown.fonts.front().name, u"Some font");
    text += shown.text;
  }
  EXPECT_TRUE(text == richtext::ReadRtf(document).text);
}

TEST(ArrivalAssembler, TheMarkerStandsBeforeTheFirstPieceAlone) {
  for (const std::string& marker : {kMarker, '\0' + std::string(67, '{') + '\0'}) {
    const std::vector<std::string> pieces =
        Pieces(marker + R"(M{\rtf1 )" + Repeat("some words ", 5 << 20) + "}");
    ASSERT_EQ(pieces.size(), 2u);
    EXPECT_TRUE(pieces[0].starts_with(marker + R"(M{\rtf1 some)"));
    EXPECT_TRUE(pieces[0].ends_with('}') && !pieces[0].ends_with("}}"));
    EXPECT_TRUE(pieces[1].starts_with(R"({\rtf1 )"));
  }
}

TEST(ArrivalAssembler, WhatIsNotShownComesOutAsNothingShown) {
  for (const std::string& data : {R"({\pict )"s, R"({\*\word )"s, R"({\bin9000000 )"s}) {
    std::u16string text;
    for (const std::string& piece : Pieces(R"({\rtf1 a)" + data + std::string(9'000'000, '0'))) {
      text += richtext::ReadRtf(piece).text;
    }
    EXPECT_EQ(text.substr(0, 10), u"a") << data;
  }
}

TEST(ArrivalAssembler, TheEndOfADocumentsLineMayComeLater) {
  ArrivalAssembler assembler;
  ASSERT_NE(Read(assembler, R"({\rtf1 a})"), std::nullopt);
  EXPECT_EQ(Read(assembler, "\r"), std::nullopt);
  EXPECT_EQ(Read(assembler, "\n\0"s), std::nullopt);
  EXPECT_EQ(assembler.Deadline(), std::nullopt);
  EXPECT_EQ(Read(assembler, "next"), Arrival("next"));
}

TEST(ArrivalAssembler, TheEndOfADocumentsLineIsTakenFromTheNextOne) {
  for (const std::string& end : {"\r\n\0"s, "\0"s, "\n"s}) {
    for (const std::string& next : {R"({\rtf1 {b}})"s, kMarker + R"(M{\rtf1 {b}})"}) {
      ArrivalAssembler assembler;
      ASSERT_NE(Read(assembler, R"({\rtf1 a})"), std::nullopt);
      EXPECT_EQ(Read(assembler, end + next.substr(0, next.size() - 1)), std::nullopt);
      EXPECT_EQ(Read(assembler, "}"), Arrival(next));
    }
  }
}

TEST(ArrivalAssembler, AMarkerAfterADocumentKeepsItsNul) {
  ArrivalAssembler assembler;
  ASSERT_NE(Read(assembler, R"({\rtf1 a})"), std::nullopt);
  const std::string message = kMarker + "NAnna" + '\0';
  EXPECT_EQ(Read(assembler, message), Arrival(message));
}

TEST(ArrivalAssembler, LineEndsThatFollowNoDocumentAreShown) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, "\r\n"), Arrival("\r\n"));
  ASSERT_NE(Read(assembler, R"({\rtf1 a})", 100), std::nullopt);
  EXPECT_EQ(Read(assembler, "\r\n", 20'100), Arrival("\r\n")) << "long after the document";
}

TEST(ArrivalAssembler, AllThatWaitsIsTakenWhenNothingMoreComes) {
  ArrivalAssembler assembler;
  assembler.Add(R"({\rtf1 a)", 0);
  EXPECT_EQ(assembler.TakeAll(), Arrival(R"({\rtf1 a)"));
  EXPECT_EQ(assembler.TakeAll(), std::nullopt);
}

}  // namespace
}  // namespace verlume::stream
