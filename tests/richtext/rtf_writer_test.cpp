#include "richtext/rtf_writer.h"

#include <gtest/gtest.h>

#include <random>

#include "richtext/document_dump.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

Document OneRun(std::u16string text, CharFormat format = {}, Font font = {u"Tahoma"}) {
  const std::size_t length = text.size();
  return {std::move(text), {{length, format}}, {std::move(font)}};
}

// What follows the tables.
std::u16string BodyOf(const std::u16string& rtf) {
  const std::u16string_view start = u"\\viewkind4\\uc1";
  return rtf.substr(rtf.find(start) + start.size());
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

TEST(RtfWriterTest, AFileTellsWordProcessorsToLeaveBlanksAsTheyAre) {
  // Without it some widen blanks that stand together, by characters of their own.
  const Document document = OneRun(u"two  blanks");
  const std::u16string rtf = WriteRtfFile(document);
  EXPECT_EQ(BodyOf(rtf), u"\\dntblnsbdb\\pard\\f0\\fs24 two  blanks\\par\r\n}");
  EXPECT_EQ(ReadRtf(rtf), document);
  EXPECT_EQ(BodyOf(WriteRtf(document)), u"\\pard\\f0\\fs24 two  blanks\\par\r\n}");
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

TEST(RtfWriterTest, OnlyWhatChangesIsSaid) {
  CharFormat all;
  all.bold = all.italic = all.underline = all.strikethrough = true;
  CharFormat otherFont = all;
  otherFont.font = 1;
  otherFont.halfPoints = 25;
  const Document document{
      u"abcd", {{1, {}}, {1, all}, {1, otherFont}, {1, {}}}, {{u"A"}, {u"B", 0}}};
  EXPECT_EQ(BodyOf(WriteRtf(document)),
            u"\\pard\\f0\\fs24 a\\b\\i\\ul\\strike b\\f1\\fs25 c"
            u"\\b0\\i0\\ulnone\\strike0\\f0\\fs24 d\\par\r\n}");
}

TEST(RtfWriterTest, TheTablesHoldWhatIsUsedInTheOrderOfItsUse) {
  const std::vector<Font> fonts = {{u"A"}, {u"B", 204}, {u"C", 0}};
  CharFormat first;
  first.font = 2;
  first.color = 0xFF8001;
  CharFormat second;
  second.color = 0;
  CharFormat third = second;
  third.color = 0xFF8001;
  const Document document{u"abc", {{1, first}, {1, second}, {1, third}}, fonts};
  EXPECT_EQ(WriteRtf(document),
            u"{\\rtf1\\ansi\\ansicpg1253\\deff0"
            u"{\\fonttbl{\\f0\\fnil\\fcharset0 C;}{\\f1\\fnil\\fcharset161 A;}}\r\n"
            u"{\\colortbl ;\\red1\\green128\\blue255;\\red0\\green0\\blue0;}\r\n"
            u"\\viewkind4\\uc1\\pard\\cf1\\f0\\fs24 a\\cf2\\f1 b\\cf1 c\\par\r\n}");
}

TEST(RtfWriterTest, AnEmptyDocumentIsOneEmptyParagraph) {
  EXPECT_EQ(WriteRtf({}),
            u"{\\rtf1\\ansi\\ansicpg1253\\deff0{\\fonttbl{\\f0\\fnil\\fcharset161 ;}}\r\n"
            u"\\viewkind4\\uc1\\pard\\par\r\n}");
  EXPECT_EQ(ReadRtf(WriteRtf({})), Document{});
}

TEST(RtfWriterTest, LineBreaksAndBlanksAtTheEdgesSurvive) {
  for (const std::u16string text :
       {u"\n", u"\n\n\n", u"a\n", u"\na", u" a ", u"\n a\n b\n", u"-1", u"1", u"\t", u"\t\t1",
        u"\\'e1", u"{}", u"\\par", u"*", u"a;b"}) {
    const Document document = OneRun(text);
    EXPECT_EQ(ReadRtf(WriteRtf(document)), document) << DumpText(text);
  }
}

TEST(RtfWriterTest, OnlyGreekFontsHaveTheirLettersInTheGreekPage) {
  EXPECT_EQ(BodyOf(WriteRtf(OneRun(u"τé"))), u"\\pard\\f0\\fs24\\'f4\\u233?\\par\r\n}");
  EXPECT_EQ(BodyOf(WriteRtf(OneRun(u"τé", {}, {u"A", 0}))),
            u"\\pard\\f0\\fs24\\u964?\\u233?\\par\r\n}");
}

TEST(RtfWriterTest, CharactersWithoutALookOfTheirOwnAreWrittenAsNumbers) {
  EXPECT_EQ(BodyOf(WriteRtf(OneRun({u'\0', 0x01, 0x7F, 0xD83D, u'x', 0xFFFF}))),
            u"\\pard\\f0\\fs24\\u0?\\u1?\\u127?\\u-10179?x\\u-1?\\par\r\n}");
}

TEST(RtfWriterTest, CarriageReturnsAreLineBreaks) {
  EXPECT_EQ(ReadRtf(WriteRtf(OneRun(u"a\rb\r\nc\r"))).text, u"a\nb\nc\n");
}

TEST(RtfWriterTest, FontNamesCannotEndTheTable) {
  const Document document = OneRun(u"x", {}, {u"A;{\\b}\r\n\t\u0080B\u007F"});
  EXPECT_EQ(ReadRtf(WriteRtf(document)), OneRun(u"x", {}, {u"A{\\b}B"}));
}

TEST(RtfWriterTest, FontNamesOutsideAsciiSurvive) {
  for (const int charset : {161, 0, 204, 128}) {
    const Document document = OneRun(u"x", {}, {u"Γραφή é 明朝 😀?", charset});
    EXPECT_EQ(ReadRtf(WriteRtf(document)), document) << charset;
  }
}

TEST(RtfWriterTest, ARunWithoutAFontIsWrittenInTheNamelessOne) {
  CharFormat lost;
  lost.font = 7;
  EXPECT_EQ(Dump(ReadRtf(WriteRtf({u"x", {{1, lost}}, {}}))), "/161 12 auto -|x\n");
}

// Documents of many runs whose formats differ in anything that a format may differ in.
TEST(RtfWriterTest, RandomDocumentsReadBackTheSame) {
  std::mt19937 random(1253);
  const auto below = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
  const std::u16string alphabet =
      u"ab 1-?;\\{}'*\t\n\u00A0\u00E9\u03B1\u03C4\u0436\u4E2D\xD83D\xDE00";
  for (int round = 0; round < 300; ++round) {
    Document document;
    document.fonts = {{u"A"}, {u"B", 0}, {u"Γ", 1}, {u"", 161}};
    for (unsigned runs = below(12); runs != 0; --runs) {
      CharFormat format;
      format.font = static_cast<std::uint16_t>(below(4));
      format.halfPoints = static_cast<std::uint16_t>(2 + below(143));
      format.color = below(2) != 0 ? static_cast<Color>(below(0x1000000)) : kAutomaticColor;
      format.bold = below(2) != 0;
      format.italic = below(2) != 0;
      format.underline = below(2) != 0;
      format.strikethrough = below(2) != 0;
      const std::size_t length = 1 + below(9);
      for (std::size_t i = 0; i < length; ++i) {
        document.text += alphabet[below(static_cast<unsigned>(alphabet.size()))];
      }
      document.runs.push_back({length, format});
    }
    EXPECT_EQ(Dump(ReadRtf(WriteRtf(document))), Dump(document));
  }
}

TEST(RtfWriterTest, EscapedTextIsWhatTheWriterWrites) {
  EXPECT_EQ(EscapeForRtf(u"a\\{}\nτé\t😀"),
            u"a\\\\\\{\\}\\par\r\n\\'f4\\u233?\\tab \\u-10179?\\u-8704?");
}

TEST(RtfWriterTest, EscapedTextInsideADocumentIsThatText) {
  const std::u16string text = u"\\b0 {τ} é\n😀\t$l";
  EXPECT_EQ(ReadRtf(u"{\\rtf1\\ansicpg1253 <" + EscapeForRtf(text) + u">}").text,
            u"<" + text + u">");
  EXPECT_EQ(EscapeForRtf(u""), u"");
}

}  // namespace
}  // namespace verlume::richtext
