#include "richtext/rtf_writer.h"

#include <gtest/gtest.h>

#include "richtext/document_dump.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

Document OneRun(std::u16string text, CharFormat format = {}, Font font = {u"Tahoma"}) {
  const std::size_t length = text.size();
  return {std::move(text), {{length, format}}, {std::move(font)}};
}

TEST(RtfWriterTest, DocumentIsWrittenAsARichTextBoxWritesIt) {
  CharFormat small;
  small.halfPoints = 16;
  CharFormat red = small;
  red.bold = true;
  red.color = 0x0000FF;
  const Document document{u"κα b\nc", {{3, small}, {1, red}, {2, small}}, {{u"Tahoma"}}};
  EXPECT_EQ(WriteRtf(document),
            u"{\\rtf1\\ansi\\ansicpg1253\\deff0{\\fonttbl{\\f0\\fnil\\fcharset161 Tahoma;}}\r\n"
            u"{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
            u"\\viewkind4\\uc1\\pard\\f0\\fs16\\'ea\\'e1 \\cf1\\b b\\cf0\\b0\\par\r\nc\\par\r\n}");
}

TEST(RtfWriterTest, NeighboursOfOneFormatHaveNothingBetweenThem) {
  EXPECT_NE(WriteRtf(OneRun(u"x $τ $Τ $l")).find(u"x $\\'f4 $\\'d4 $l\\par"), std::u16string::npos);
}

TEST(RtfWriterTest, ReadingWhatWasWrittenGivesAnEqualDocument) {
  std::u16string everything;
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    if (unit != u'\r') everything.push_back(static_cast<char16_t>(unit));
  }
  for (const int charset : {161, 0, 1, 204}) {
    const Document document = OneRun(everything, {}, {u"Tahoma", charset});
    const std::u16string rtf = WriteRtf(document);
    EXPECT_EQ(rtf.find(u'\0'), std::u16string::npos);
    EXPECT_EQ(ReadRtf(rtf), document) << charset;
  }
}

TEST(RtfWriterTest, EscapedTextIsWhatTheWriterWrites) {
  EXPECT_EQ(EscapeForRtf(u"a\\{}\nτé\t😀"),
            u"a\\\\\\{\\}\\par\r\n\\'f4\\u233?\\tab \\u-10179?\\u-8704?");
}

}  // namespace
}  // namespace verlume::richtext
