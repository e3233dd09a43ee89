#include "richtext/document_joiner.h"

#include <gtest/gtest.h>

#include <string>

#include "richtext/document_dump.h"
#include "richtext/rtf_documents.h"
#include "richtext/rtf_limits.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

TEST(DocumentJoinerTest, JoinedDocumentsKeepTheirLooks) {
  EXPECT_EQ(
      Dump(ReadJoinedRtfDocuments(u"{\\rtf1{\\fonttbl{\\f0 A;}{\\f1 B;}}\\f0 a\\f1\\b b}"
                                  u"{\\rtf1{\\fonttbl{\\f7 B;}{\\f8 A;}}\\f7\\b c\\b0\\f8 d}")),
      Dump(ReadRtf(u"{\\rtf1{\\fonttbl{\\f0 A;}{\\f1 B;}}\\f0 a\\f1\\b bc\\b0\\f0 d}")));
}

TEST(DocumentJoinerTest, WhatIsNoTextIsLeftOut) {
  EXPECT_EQ(ReadJoinedRtfDocuments(u"{\\rtf1 a\\par}\r\n{\\rtf1 b}tail").text, u"abtail");
  EXPECT_EQ(ReadJoinedRtfDocuments(u""), Document());
}

TEST(DocumentJoinerTest, TextInTooManyFontsGetsTheLast) {
  DocumentJoiner joiner;
  for (std::size_t i = 1; i <= limits::kMaxFonts + 1; ++i) {
    joiner.Add({u"x", {{1, {}}}, {{std::u16string(i, u'n'), 0}}});
  }
  const Document joined = joiner.Take();
  ASSERT_EQ(joined.fonts.size(), limits::kMaxFonts);
  EXPECT_EQ(joined.fonts.back().name.size(), limits::kMaxFonts);
  EXPECT_EQ(joined.runs.back(), (richtext::Run{2, {.font = limits::kMaxFonts - 1}}));
}

}  // namespace
}  // namespace verlume::richtext
