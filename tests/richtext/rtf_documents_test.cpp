#include "richtext/rtf_documents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "richtext/document_dump.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

using namespace std::literals;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::u16string_view> Sources(std::u16string_view text) {
  std::vector<std::u16string_view> sources;
  for (const ReadDocument& each : ReadRtfDocuments(text)) {
    EXPECT_EQ(Dump(each.document), Dump(ReadRtf(each.source)));
    sources.push_back(each.source);
  }
  return sources;
}

TEST(RtfDocumentsTest, OneDocumentIsOnePiece) {
  EXPECT_THAT(Sources(u"{\\rtf1 a{b}}"), ElementsAre(u"{\\rtf1 a{b}}"));
}

TEST(RtfDocumentsTest, PlainTextIsOnePiece) {
  EXPECT_THAT(Sources(u"a } {\\b c"), ElementsAre(u"a } {\\b c"));
}

TEST(RtfDocumentsTest, AnEmptyTextHasNoPieces) {
  EXPECT_THAT(Sources(u""), IsEmpty());
}

TEST(RtfDocumentsTest, JoinedDocumentsComeApartWithWhatStandsBetween) {
  EXPECT_THAT(Sources(u"{\\rtf1 a}{\\rtf1 b}\0marker\0M{\\rtf1 c}tail"sv),
              ElementsAre(u"{\\rtf1 a}", u"{\\rtf1 b}", u"\0marker\0M"sv, u"{\\rtf1 c}", u"tail"));
}

TEST(RtfDocumentsTest, LineEndsAndNulsBehindADocumentAreNoText) {
  EXPECT_THAT(Sources(u"{\\rtf1 a}\r\n\0{\\rtf1 b}\r\n"sv),
              ElementsAre(u"{\\rtf1 a}", u"{\\rtf1 b}"));
}

TEST(RtfDocumentsTest, ACutOffDocumentReachesToTheEnd) {
  EXPECT_THAT(Sources(u"{\\rtf1 a}{\\rtf1 {b"), ElementsAre(u"{\\rtf1 a}", u"{\\rtf1 {b"));
}

TEST(RtfDocumentsTest, EscapedBracesAndBinaryDataEndNoDocument) {
  EXPECT_THAT(Sources(u"{\\rtf1 \\}\\bin2 }}x}rest"),
              ElementsAre(u"{\\rtf1 \\}\\bin2 }}x}", u"rest"));
}

}  // namespace
}  // namespace verlume::richtext
