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
      {R"(a{\pict\bin3 }{}b}b)", "ab"},
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

TEST(RtfReaderTest, TheFontsCharsetDecidesTheCodePage) {
  EXPECT_EQ(ReadText(R"(\f0\'e1\f1\'e1\f2\'e1)"), "αáα");
  EXPECT_EQ(ReadText("\\f0 \xe1\\f1 \xe1\\f2 \xe1"), "αáα");
}

TEST(RtfReaderTest, CharactersOfAStringStandForThemselves) {
  const Document document = ReadRtf(u"{\\rtf1\\ansi καλη😀\\'e9é\\par}");
  EXPECT_EQ(DumpText(document.text), "καλη😀éé");
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
