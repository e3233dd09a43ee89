#include "stream/arrival_assembler.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/protocol_marker.h"
#include "richtext/rtf_reader.h"

namespace verlume::stream {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

using Arrival = std::optional<std::string>;

constexpr TimePoint kStart;
const std::string kMarker = '\0' + std::string(kMarkerTextLength, 'm') + '\0';

// Adds and takes at the same time.
Arrival Read(ArrivalAssembler& assembler, std::string_view bytes, TimePoint now = kStart) {
  assembler.Add(bytes, now);
  return assembler.Take(now);
}

// The text comes out complete although its bytes come one by one; nothing comes out before.
void ExpectHeldTogether(const std::string& text) {
  ArrivalAssembler assembler;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    EXPECT_EQ(Read(assembler, text.substr(i, 1)), std::nullopt) << i << " of " << text;
  }
  EXPECT_EQ(Read(assembler, text.substr(text.size() - 1)), Arrival(text)) << text;
}

TEST(ArrivalAssembler, AnEmptyOneHasNothing) {
  ArrivalAssembler assembler;
  EXPECT_EQ(assembler.Take(kStart), std::nullopt);
  EXPECT_EQ(assembler.Flush(), std::nullopt);
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

TEST(ArrivalAssembler, AHugeDataLengthIsHarmless) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, R"({\rtf1\bin99999999999999999999999999 }})"), std::nullopt);
  EXPECT_NE(assembler.Take(kStart + ArrivalAssembler::kTimeout), std::nullopt);
}

TEST(ArrivalAssembler, TextThatFollowsADocumentInTheSameReadJoinsIt) {
  for (const std::string& tail : {"tail"s, "\r\n\0"s, "{\\rtf1 b}"s, kMarker + "M{\\rtf1 b}"}) {
    ArrivalAssembler assembler;
    EXPECT_EQ(Read(assembler, R"({\rtf1 a})" + tail), Arrival(R"({\rtf1 a})" + tail));
  }
}

TEST(ArrivalAssembler, ASecondDocumentInTheSameReadIsHeldTogether) {
  for (const std::string& between : {""s, "\r\n"s, "\r\n\0"s}) {
    ArrivalAssembler assembler;
    const std::string first = R"({\rtf1 a})" + between;
    EXPECT_EQ(Read(assembler, first + R"({\rtf1 {b)"), Arrival(first));
    EXPECT_EQ(Read(assembler, "}}{\\"), Arrival(R"({\rtf1 {b}})"));
    EXPECT_EQ(Read(assembler, "rtf1 c}"), Arrival(R"({\rtf1 c})"));
  }
}

TEST(ArrivalAssembler, AMessageBehindADocumentIsHeldTogether) {
  ArrivalAssembler assembler;
  const std::string next = kMarker + R"(M{\rtf1 {b}})";
  EXPECT_EQ(Read(assembler, R"({\rtf1 a})" + next.substr(0, 75)), Arrival(R"({\rtf1 a})"));
  EXPECT_EQ(Read(assembler, next.substr(75)), Arrival(next));
}

// However a stream of documents is split, each comes out complete, and as soon as it is.
TEST(ArrivalAssembler, NoDocumentWaitsForTheNextOne) {
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

TEST(ArrivalAssembler, ADocumentIsHeldBackUntilTwentySecondsAfterItsLastByte) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, R"({\rtf1 a)", kStart + 1s), std::nullopt);
  EXPECT_EQ(assembler.Deadline(), kStart + 21s);
  EXPECT_EQ(Read(assembler, "b", kStart + 2500ms), std::nullopt);
  EXPECT_EQ(assembler.Deadline(), kStart + 22'500ms);
  EXPECT_EQ(assembler.Take(kStart + 22'499ms), std::nullopt);
  EXPECT_EQ(assembler.Take(kStart + 22'500ms), Arrival(R"({\rtf1 ab)"));
  EXPECT_EQ(assembler.Deadline(), std::nullopt);
}

TEST(ArrivalAssembler, TheRestOfADocumentThatTimedOutIsReadyAtOnce) {
  ArrivalAssembler assembler;
  assembler.Add(R"({\rtf1 a)", kStart);
  ASSERT_NE(assembler.Take(kStart + 20s), std::nullopt);
  EXPECT_EQ(Read(assembler, "b}", kStart + 20'001ms), Arrival("b}"));
}

TEST(ArrivalAssembler, AnIncompleteBeginningIsHeldBackForTwentySeconds) {
  for (const std::string& begun : {"{"s, "{\\rt"s, "\0mm"s, kMarker, kMarker + "M"}) {
    ArrivalAssembler assembler;
    EXPECT_EQ(Read(assembler, begun), std::nullopt);
    EXPECT_EQ(assembler.Take(kStart + 19'999ms), std::nullopt);
    EXPECT_EQ(assembler.Take(kStart + 20s), Arrival(begun));
  }
}

TEST(ArrivalAssembler, ABeginningThatTurnsOutToBeOtherTextIsReadyAtOnce) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, "{\\"), std::nullopt);
  EXPECT_EQ(Read(assembler, "x"), Arrival("{\\x"));
}

// What comes out of a text that is read 256 KiB at a time.
std::vector<std::string> Parts(const std::string& text) {
  constexpr std::size_t kRead = 256 << 10;
  ArrivalAssembler assembler;
  std::vector<std::string> parts;
  for (std::size_t at = 0; at < text.size(); at += kRead) {
    const Arrival part = Read(assembler, std::string_view(text).substr(at, kRead));
    if (part) parts.push_back(*part);
  }
  if (const Arrival part = assembler.Flush()) parts.push_back(*part);
  return parts;
}

std::string Repeat(std::string_view part, std::size_t size) {
  std::string text;
  while (text.size() < size) text += part;
  return text;
}

TEST(ArrivalAssembler, AtMostFourMebibytesOfADocumentAreHeldBack) {
  ArrivalAssembler assembler;
  const std::string begun = R"({\rtf1 )" + std::string(ArrivalAssembler::kLongestHeldBack - 8, 'x');
  EXPECT_EQ(Read(assembler, begun), std::nullopt);
  const Arrival part = Read(assembler, "y");
  ASSERT_TRUE(part);
  EXPECT_LT(part->size(), begun.size());
  const Arrival rest = Read(assembler, "the rest}");
  ASSERT_TRUE(rest);
  EXPECT_TRUE(rest->ends_with("ythe rest}"));
  EXPECT_EQ(Read(assembler, R"({\rtf1 next})"), Arrival(R"({\rtf1 next})"));
}

TEST(ArrivalAssembler, EachPartOfALongDocumentIsADocument) {
  const std::string content = Repeat(R"(some {\b words\'e1} and \u945?\fs20 more, )", 10 << 20);
  const std::string document = R"({\rtf1\ansi{\fonttbl{\f0 Some font;}}\f0 )" + content + "}";
  const std::vector<std::string> parts = Parts(document);
  ASSERT_GE(parts.size(), 3u);
  std::u16string text;
  for (const std::string& part : parts) {
    EXPECT_TRUE(part.starts_with(R"({\rtf1)"));
    EXPECT_TRUE(part.ends_with('}'));
    EXPECT_LE(part.size(), ArrivalAssembler::kLongestHeldBack);
    const richtext::Document shown = richtext::ReadRtf(part);
    EXPECT_EQ(shown.fonts.front().name, u"Some font");
    text += shown.text;
  }
  EXPECT_TRUE(text == richtext::ReadRtf(document).text);
}

TEST(ArrivalAssembler, TheMarkerComesWithTheFirstPartOnly) {
  for (const std::string& marker : {kMarker, '\0' + std::string(kMarkerTextLength, '{') + '\0'}) {
    const std::vector<std::string> parts =
        Parts(marker + R"(M{\rtf1 )" + Repeat("some words ", 5 << 20) + "}");
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_TRUE(parts[0].starts_with(marker + R"(M{\rtf1 some)"));
    EXPECT_TRUE(parts[0].ends_with('}') && !parts[0].ends_with("}}"));
    EXPECT_TRUE(parts[1].starts_with(R"({\rtf1 )"));
  }
}

TEST(ArrivalAssembler, PartsOfHiddenDataShowNothing) {
  for (const std::string& data : {R"({\pict )"s, R"({\*\word )"s, R"({\bin9000000 )"s}) {
    std::u16string text;
    for (const std::string& part : Parts(R"({\rtf1 a)" + data + std::string(9'000'000, '0'))) {
      text += richtext::ReadRtf(part).text;
    }
    EXPECT_EQ(text.substr(0, 10), u"a") << data;
  }
}

TEST(ArrivalAssembler, ALateLineEndOfADocumentIsDropped) {
  ArrivalAssembler assembler;
  ASSERT_NE(Read(assembler, R"({\rtf1 a})"), std::nullopt);
  EXPECT_EQ(Read(assembler, "\r"), std::nullopt);
  EXPECT_EQ(Read(assembler, "\n\0"s), std::nullopt);
  EXPECT_EQ(assembler.Deadline(), std::nullopt);
  EXPECT_EQ(Read(assembler, "next"), Arrival("next"));
}

TEST(ArrivalAssembler, ALateLineEndIsRemovedFromTheNextMessage) {
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

TEST(ArrivalAssembler, LineEndsThatFollowNoDocumentAreDelivered) {
  ArrivalAssembler assembler;
  EXPECT_EQ(Read(assembler, "\r\n"), Arrival("\r\n"));
  ASSERT_NE(Read(assembler, R"({\rtf1 a})", kStart + 100ms), std::nullopt);
  EXPECT_EQ(Read(assembler, "\r\n", kStart + 20'100ms), Arrival("\r\n"))
      << "long after the document";
}

TEST(ArrivalAssembler, FlushGivesTheIncompleteRest) {
  ArrivalAssembler assembler;
  assembler.Add(R"({\rtf1 a)", kStart);
  EXPECT_EQ(assembler.Flush(), Arrival(R"({\rtf1 a)"));
  EXPECT_EQ(assembler.Flush(), std::nullopt);
}

}  // namespace
}  // namespace verlume::stream
