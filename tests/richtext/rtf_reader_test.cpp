#include "richtext/rtf_reader.h"

#include <gtest/gtest.h>

#include "richtext/document_dump.h"

namespace verlume::richtext {
namespace {

struct Case {
  std::string_view rtf;
  std::string_view text;
};

// The body of a document with a Greek font 0, a western font 1, a font 2 without a charset and the
// colours red and blue.
std::string Wrap(std::string_view body) {
  return R"({\rtf1\ansi\ansicpg1253\deff0{\fonttbl{\f0\fnil\fcharset161 Tahoma;})"
         R"({\f1\fnil\fcharset0 Arial;}{\f2 Times;}})"
         "\r\n"
         R"({\colortbl ;\red255\green0\blue0;\red0\green0\blue255;}\pard\f0\fs16 )" +
         std::string(body) + "}";
}

std::string ReadText(std::string_view body) {
  return DumpText(ReadRtf(std::string_view(Wrap(body))).text);
}

std::string ReadRuns(std::string_view body) {
  return Dump(ReadRtf(std::string_view(Wrap(body))));
}

TEST(RtfReaderTest, TextIsReadWithItsEscapes) {
  const Case cases[] = {
      {R"(abc)", R"(abc)"},
      {R"(\{a\}\\b)", R"({a}\\b)"},
      {R"(\'e1\'E1)", "αα"},
      {R"(\u945?\u946?)", "αβ"},
      {R"(\u-10179?\u-8704?)", "😀"},
      {R"(\u55357?\u56832?)", "😀"},
      {R"(\u128512?x)", "😀x"},
      {R"(\uc0\u945 x)", "αx"},
      {R"(\uc2\u945??x)", "αx"},
      {R"(\uc2\u945\'e1\'e2x)", "αx"},
      {R"({\uc0\u945}\u946?x)", "αβx"},
      {R"(\u945}x)", "α"},
      {R"({\u945}x)", "αx"},
      {R"(a\tab b)", R"(a\tb)"},
      {R"(\lquote a\rquote\ldblquote b\rdblquote)", "‘a’“b”"},
      {R"(\endash\emdash\bullet)", "–—•"},
      {R"(a\~b\_c)", "a\u00A0b‑c"},
      {R"(\enspace\emspace\qmspace)", "\u2002\u2003\u2005"},
      {"a\r\nb\nc", "abc"},
      {"a\tb", R"(a\tb)"},
      {R"(a\foobar b\foobar12 c\foobar-3d\-)", "abcd\u00AD"},
  };
  for (const auto& [rtf, text] : cases) EXPECT_EQ(ReadText(rtf), text) << rtf;
}

TEST(RtfReaderTest, BreaksAreLineBreaksAndTheLastParagraphEndAddsNoLine) {
  const Case cases[] = {
      {R"(a\par)", R"(a)"},
      {R"(a\par\par)", R"(a\n)"},
      {R"(\par)", R"()"},
      {R"(\par\par)", R"(\n)"},
      {R"(a\par b)", R"(a\nb)"},
      {R"(a\line b)", R"(a\nb)"},
      {R"(a\line)", R"(a\n)"},
      {R"(a\page b)", R"(a\nb)"},
      {R"(a\cell b\cell\row)", R"(a\tb\t\n)"},
      {"a\\\r\nb", R"(a\nb)"},
      {"a\\\nb\\\n", R"(a\nb)"},
      {R"(a\sect b)", R"(a\nb)"},
      {R"(a\par{\b}\pard)", R"(a)"},
      {R"({a\par})", R"(a)"},
  };
  for (const auto& [rtf, text] : cases) EXPECT_EQ(ReadText(rtf), text) << rtf;
}

TEST(RtfReaderTest, WhatCarriesNoShownTextIsPassedOver) {
  const Case cases[] = {
      {R"(a{\*\unknown x{y}\}}b)", "ab"},
      {R"(a{\pict\wmetafile8 0a0b0c}b)", "ab"},
      {R"(a{\field{\*\fldinst HYPERLINK "x"}{\fldrslt link}}b)", "alinkb"},
      {R"(a{\info{\title t}}{\stylesheet{\s0 Normal;}}b)", "ab"},
      {R"({\header h}{\footer f}{\pntext\'b7\tab}a)", "a"},
      {R"(a{\object\objemb{\*\objdata 00}{\result r}}b)", "ab"},
      {R"(a{\pict\bin3 }}}x}b)", "ab"},
      {R"(a\bin2 {}b)", "ab"},
      {R"(a{\v hidden}b)", "ahiddenb"},
      {R"(a{\unknown shown}b)", "ashownb"},
  };
  for (const auto& [rtf, text] : cases) EXPECT_EQ(ReadText(rtf), text) << rtf;
}

TEST(RtfReaderTest, FormatsApplyFromTheirWordToTheEndOfTheGroup) {
  EXPECT_EQ(ReadRuns(R"(a{\b b{\i c}d}e)"),
            "Tahoma/161 8 auto -|a\n"
            "Tahoma/161 8 auto b|b\n"
            "Tahoma/161 8 auto bi|c\n"
            "Tahoma/161 8 auto b|d\n"
            "Tahoma/161 8 auto -|e\n");
  EXPECT_EQ(ReadRuns(R"(\b\i\ul\strike\cf1\f1\fs25 x\b0\i0\ulnone\strike0\cf0\f0\fs16 y)"),
            "Arial/0 12.5 #ff0000 bius|x\nTahoma/161 8 auto -|y\n");
  EXPECT_EQ(ReadRuns(R"(\f1\fs40\b\cf2 x\plain y\pard z)"),
            "Arial/0 20 #0000ff b|x\nTahoma/161 12 auto -|yz\n");
  EXPECT_EQ(ReadRuns(R"(a\b\b0 b)"), "Tahoma/161 8 auto -|ab\n");
}

TEST(RtfReaderTest, EastAsianTextHasTheFormatThatIsMeantForIt) {
  // As word processors write it: associated words behind \dbch are for what stands behind \dbch.
  EXPECT_EQ(
      ReadRuns(R"(\fs24{\cf2\fs20\i\loch a}{\cf2\f1\dbch\afs20\ab\i\dbch \u26085?}{\fs19\loch b})"),
      "Tahoma/161 10 #0000ff i|a\n"
      "Arial/0 10 #0000ff bi|日\n"
      "Tahoma/161 9.5 auto -|b\n");
  EXPECT_EQ(
      ReadRuns(R"(\fs22\dbch\afs28\ai{\loch a}{\dbch \u26085?}{\hich b}{\ltrch c}\afs30 \u26085?)"),
      "Tahoma/161 11 auto -|a\n"
      "Tahoma/161 14 auto i|日\n"
      "Tahoma/161 11 auto -|bc\n"
      "Tahoma/161 15 auto i|日\n");
}

TEST(RtfReaderTest, FormatsMeantForOtherScriptsChangeNothing) {
  EXPECT_EQ(ReadRuns(R"(\rtlch\afs60\ab\ai\af1 \ltrch\fs18 a{\afs60\ab\ai b}\dbch\af1 c)"),
            "Tahoma/161 9 auto -|abc\n");
  EXPECT_EQ(ReadRuns(R"(\dbch\afs60\plain\ab b)"), "Tahoma/161 12 auto -|b\n");
  EXPECT_EQ(ReadRuns(R"(\dbch\afs60\rtlch\ab\afs50\ltrch a\dbch\fs18 b\ab0\b c)"),
            "Tahoma/161 8 auto -|a\nTahoma/161 9 auto -|b\nTahoma/161 9 auto b|c\n");
  EXPECT_EQ(ReadRuns(R"(\dbch\afs60\ab x\plain y\dbch z)"),
            "Tahoma/161 30 auto b|x\nTahoma/161 12 auto -|yz\n");
}

TEST(RtfReaderTest, TheFontsCharsetDecidesTheCodePage) {
  EXPECT_EQ(ReadText(R"(\f0\'e1\f1\'e1\f2\'e1)"), "αáα");
  EXPECT_EQ(ReadText("\\f0 \xe1\\f1 \xe1\\f2 \xe1"), "αáα");
}

TEST(RtfReaderTest, FontsThatNameNoPageFollowTheDocument) {
  const Case cases[] = {
      {R"({\rtf1\ansi \'e1})", "á"},
      {R"({\rtf1 \'e1})", "á"},
      {R"({\rtf1\ansicpg1251 \'e1})", "б"},
      {R"({\rtf1\mac \'8e})", "é"},
      {R"({\rtf1\pc \'e1})", "ß"},
      {R"({\rtf1\pc \'9e})", "₧"},
      {R"({\rtf1\pca \'9e})", "×"},
      {R"({\rtf1\ansi\ansicpg437 \'e0})", "α"},
      {R"({\rtf1\ansi\ansicpg932 \'e1})", "á"},
      {R"({\rtf1\ansicpg1253{\fonttbl{\f0\fcharset1 A;}}\'e1})", "α"},
      {R"({\rtf1\ansicpg1253{\fonttbl{\f0\fcharset2 A;}}\'e1})", "α"},
      {R"({\rtf1{\fonttbl{\f0\cpg1253 A;}}\'e1})", "α"},
      {R"({\rtf1{\fonttbl{\f0\fcharset204\cpg1253 A;}}\'e1})", "α"},
      {R"({\rtf1{\fonttbl{\f0\fcharset204\cpg99 A;}}\'e1})", "б"},
  };
  for (const auto& [rtf, text] : cases) EXPECT_EQ(DumpText(ReadRtf(rtf).text), text) << rtf;
}

TEST(RtfReaderTest, Utf8OfADocumentThatDeclaresItIsRead) {
  const std::string head = "{\\rtf1\\ansicpg65001{\\fonttbl{\\f0\\fcharset161 A;}}";
  const auto read = [&](const std::string& body) {
    return DumpText(ReadRtf(std::string_view(head + body + "}")).text);
  };
  EXPECT_EQ(read("\xCE\xB1\xE2\x82\xAC\xF0\x9F\x98\x80 x"), "α€😀 x");
  EXPECT_EQ(read("\\'ce\\'b1\\'e2\\'82\\'ac x"), "α€ x");
  EXPECT_EQ(read("\\'e1\\'e2 \xE1"), "αβ α");  // not UTF-8: the font's page
  EXPECT_EQ(read("\xE1\xCE\xB1\\'e1\\'ce\\'b1"), "αααα");
  EXPECT_EQ(read("\xCE\\b \xB1"), "Ξ±");
  EXPECT_EQ(DumpText(ReadRtf(u"{\\rtf1\\ansicpg65001 \u00CE\u00B1\\'ce\\'b1}").text), "Î±α");
}

TEST(RtfReaderTest, FontTablesAreReadInTheirManyShapes) {
  const Case cases[] = {
      {R"({\rtf1{\fonttbl\f0\fswiss A;\f1 B;}\f1 x})", "B/1 12 auto -|x\n"},
      {R"({\rtf1{\fonttbl{\f0 A;}{\f5\fcharset161{\*\panose 02}B{\*\falt C};}}\f5 x})",
       "B/161 12 auto -|x\n"},
      {R"({\rtf1{\fonttbl{\f0 A}{\f1 B}}\f1 x})", "B/1 12 auto -|x\n"},
      {R"({\rtf1{\fonttbl{\f0\fcharset161 \'c1\u233?\u946?;}}x})", "Αéβ/161 12 auto -|x\n"},
      {R"({\rtf1\deff1{\fonttbl{\f0 A;}{\f1 B;}}x\f0 y\plain z\f9 w})",
       "B/1 12 auto -|x\nA/1 12 auto -|y\nB/1 12 auto -|zw\n"},
      {R"({\rtf1{\fonttbl{\f0 A;}{\f1 A;}}x\f1 y})", "A/1 12 auto -|xy\n"},
      {R"({\rtf1{\*\fonttbl{\f0 A;}}x})", "A/1 12 auto -|x\n"},
      {R"({\rtf1{\fonttbl{\f0 A;}\par\line}x})", "A/1 12 auto -|x\n"},
      {R"({\rtf1 x{\fonttbl{\f0 A;}}y})", "A/1 12 auto -|xy\n"},
      {R"({\rtf1{\fonttbl{\f0 A\'0d\u10?\u133?B;}}x})", "AB/1 12 auto -|x\n"},
  };
  for (const auto& [rtf, dump] : cases) EXPECT_EQ(Dump(ReadRtf(rtf)), dump) << rtf;
}

TEST(RtfReaderTest, ColorTablesAreReadInTheirManyShapes) {
  const Case cases[] = {
      {R"({\rtf1{\colortbl;\red255;\green128;}\cf1 a\cf2 b\cf0 c\cf3 d})",
       "/161 12 #ff0000 -|a\n/161 12 #008000 -|b\n/161 12 auto -|cd\n"},
      {R"({\rtf1{\colortbl\red1\green2\blue3;\red300\green-1\blue0;}a\cf0 b\cf1 c\cf d})",
       "/161 12 auto -|a\n/161 12 #010203 -|b\n/161 12 #ff0000 -|c\n/161 12 #010203 -|d\n"},
      {R"({\rtf1{\*\colortbl;\red0\green0\blue0;\red255\green255\blue255;}\cf1 a\cf2 b})",
       "/161 12 #000000 -|a\n/161 12 #ffffff -|b\n"},
      {R"({\rtf1\red255 a\fcharset2 b})", "/161 12 auto -|ab\n"},
  };
  for (const auto& [rtf, dump] : cases) EXPECT_EQ(Dump(ReadRtf(rtf)), dump) << rtf;
}

TEST(RtfReaderTest, CharactersBehindUnicodeArePassedOverAndNothingElse) {
  const Case cases[] = {
      {R"(\u945\endash x)", "αx"},
      {R"(\u945\~x)", "αx"},
      {R"(\u945\{x)", "αx"},
      {R"(\u945\u946?x)", "αβx"},
      {R"(\u945\b x)", "αx"},
      {R"(\u945\par x)", R"(α\nx)"},
      {R"(\u945\line x)", R"(α\nx)"},
      {"\\u945\\\nx", R"(α\nx)"},
      {R"(\uc2\u945{x}y)", "αxy"},
      {R"(\uc3\u945?\'e1\bin2 {}x)", "αx"},
      {"\\u945\r\n?x", "αx"},
      {R"(\uc2\u945 abc)", "αc"},
      {R"(\u x)", "x"},
  };
  for (const auto& [rtf, text] : cases) EXPECT_EQ(ReadText(rtf), text) << rtf;
}

TEST(RtfReaderTest, EveryNamedCharacterIsRead) {
  EXPECT_EQ(
      ReadText(R"(\emdash\endash\lquote\rquote\ldblquote\rdblquote\bullet\enspace\emspace)"
               R"(\qmspace\zwbo\zwnj\zwj\ltrmark\rtlmark\zwnbo\tab\nestcell\~\_\-)"),
      "—–‘’“”•\u2002\u2003\u2005\u200B\u200C\u200D\u200E\u200F\u2060\\t\\t\u00A0\u2011\u00AD");
}

TEST(RtfReaderTest, UnderlinesOfEveryKindShowAsUnderline) {
  for (const std::string word : {"ul", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulhair",
                                 "ulhwave", "ulldash", "ulth", "ulthd", "ulthdash", "ulthdashd",
                                 "ulthdashdd", "ulthldash", "ululdbwave", "ulw", "ulwave"}) {
    EXPECT_EQ(ReadRuns("\\" + word + " a\\" + word + "0 b"),
              "Tahoma/161 8 auto u|a\nTahoma/161 8 auto -|b\n")
        << word;
  }
}

TEST(RtfReaderTest, BrokenSymbolsLoseNoText) {
  const Case cases[] = {
      {R"(a\'zzb)", "azzb"}, {R"(a\'ezb)", "aezb"},  {R"(a\'{b}c)", "abc"}, {R"(a\ b)", "ab"},
      {R"(a\*b)", "ab"},     {R"(a\* \b c)", "a c"}, {"a\\\xE1", "aα"},     {R"(a\|\:b)", "ab"},
  };
  for (const auto& [rtf, text] : cases) EXPECT_EQ(ReadText(rtf), text) << rtf;
}

TEST(RtfReaderTest, ControlCharactersAreHarmless) {
  EXPECT_EQ(ReadText(R"(a\'0db\'0ac\u13?d)"), R"(a\nb\nc\nd)");
  EXPECT_EQ(ReadText(R"(a\'00b\u0?c\'09d)"), R"(a\u0000b\u0000c\td)");
  EXPECT_EQ(ReadText(std::string_view("a\0b\x01", 4)), R"(ab\u0001)");
}

TEST(RtfReaderTest, OnlyTheExactSignatureMakesRtf) {
  EXPECT_TRUE(LooksLikeRtf(u"{\\rtf1 a}"));
  EXPECT_TRUE(LooksLikeRtf("{\\rtf"));
  for (const std::string_view text :
       {"", "{\\rt", " {\\rtf1}", "{\\RTF1}", "{ \\rtf1}", "\\rtf1"}) {
    EXPECT_FALSE(LooksLikeRtf(text)) << text;
    EXPECT_FALSE(LooksLikeRtf(std::u16string(text.begin(), text.end()))) << text;
  }
}

TEST(RtfReaderTest, CharactersOfAStringStandForThemselves) {
  const Document document = ReadRtf(u"{\\rtf1\\ansi καλη😀\\'e9é\\par}");
  EXPECT_EQ(DumpText(document.text), "καλη😀éé");
  EXPECT_EQ(ReadRtf(u"{\\rtf1\\ansicpg1253 \\'e1é}").text, u"αé");
}

TEST(RtfReaderTest, PlainTextIsOneRun) {
  EXPECT_EQ(Dump(ReadRtf(u"a{\\rtf b}\r\nc\rd\n")), "/161 12 auto -|a{\\\\rtf b}\\nc\\nd\\n\n");
  EXPECT_EQ(Dump(ReadRtf(std::string_view("\xEF\xBB\xBF\xCE\xB1"))), "/161 12 auto -|α\n");
  EXPECT_EQ(ReadRtf(u""), Document{});
}

TEST(RtfReaderTest, TheDocumentEndsAtItsClosingBrace) {
  EXPECT_EQ(Dump(ReadRtf(u"{\\rtf1 a} trailing {\\b x}")), "/161 12 auto -|a\n");
  EXPECT_EQ(Dump(ReadRtf(u"{\\rtf1 {a} b")), "/161 12 auto -|a b\n");
}

}  // namespace
}  // namespace verlume::richtext
