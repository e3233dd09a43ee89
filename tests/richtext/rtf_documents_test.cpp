#include "richtext/rtf_documents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace verlume::richtext {
namespace {

using namespace std::literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(RtfDocumentsTest, OneDocumentIsOnePiece) {
  EXPECT_THAT(SplitRtfDocuments(u"{\\rtf1 a{b}}"), ElementsAre(u"{\\rtf1 a{b}}"));
}

TEST(RtfDocumentsTest, PlainTextIsOnePiece) {
  EXPECT_THAT(SplitRtfDocuments(u"a } {\\b c"), ElementsAre(u"a } {\\b c"));
}

TEST(RtfDocumentsTest, AnEmptyTextHasNoPieces) {
  EXPECT_THAT(SplitRtfDocuments(u""), IsEmpty());
}

TEST(RtfDocumentsTest, JoinedDocumentsComeApartWithWhatStandsBetween) {
  EXPECT_THAT(SplitRtfDocuments(u"{\\rtf1 a}{\\rtf1 b}\0marker\0M{\\rtf1 c}tail"sv),
              ElementsAre(u"{\\rtf1 a}", u"{\\rtf1 b}", u"\0marker\0M"sv, u"{\\rtf1 c}", u"tail"));
}

TEST(RtfDocumentsTest, LineEndsAndNulsBehindADocumentAreNoText) {
  EXPECT_THAT(SplitRtfDocuments(u"{\\rtf1 a}\r\n\0{\\rtf1 b}\r\n"sv),
              ElementsAre(u"{\\rtf1 a}", u"{\\rtf1 b}"));
}

TEST(RtfDocumentsTest, ACutOffDocumentReachesToTheEnd) {
  EXPECT_THAT(SplitRtfDocuments(u"{\\rtf1 a}{\\rtf1 {b"),
              ElementsAre(u"{\\rtf1 a}", u"{\\rtf1 {b"));
}

TEST(RtfDocumentsTest, EscapedBracesAndBinaryDataEndNoDocument) {
  EXPECT_THAT(SplitRtfDocuments(u"{\\rtf1 \\}\\bin2 }}x}rest"),
              ElementsAre(u"{\\rtf1 \\}\\bin2 }}x}", u"rest"));
}

}  // namespace
}  // namespace verlume::richtext
