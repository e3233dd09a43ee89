// Texts in files where they are in a code page.
#include <windows.h>

#include "platform_qt/os/local_text_windows.h"

#include <gmock/gmock.h>

#include "platform_qt/os/local_text.h"

namespace verlume::qt {
namespace {

constexpr unsigned kJapanese = 932;
constexpr unsigned kWestern = 1252;
constexpr unsigned kGreek = 1253;
constexpr unsigned kAll[] = {kJapanese, 936,  949,  950,  874,  1250, 1251,   kWestern,
                             kGreek,    1254, 1255, 1256, 1257, 1258, CP_UTF8};

std::u16string EveryCharacter(char16_t first, char16_t last) {
  std::u16string text;
  for (char32_t c = first; c <= last; ++c) text += static_cast<char16_t>(c);
  return text;
}

TEST(CodePageTextTest, ATextThatThePageHasIsWrittenInIt) {
  EXPECT_EQ(EncodeInCodePage(u"aβγ €\r\n", kGreek), "a\xE2\xE3 \x80\r\n");
  EXPECT_EQ(EncodeInCodePage(u"表\\ソ", kJapanese), "\x95\x5C\\\x83\x5C");
  EXPECT_EQ(DecodeInCodePage("\x95\x5C\\\x83\x5C", kJapanese), u"表\\ソ");
  EXPECT_EQ(EncodeInCodePage(u"é", kWestern), "\xE9");
}

TEST(CodePageTextTest, WhatThePageLacksMakesTheWholeTextUtf8) {
  EXPECT_EQ(EncodeInCodePage(u"β\n日", kGreek), "\xCE\xB2\n\xE6\x97\xA5");
  EXPECT_EQ(EncodeInCodePage(u"β", kWestern), "\xCE\xB2") << "and not ß, which looks like it";
  EXPECT_EQ(EncodeInCodePage(u"Ā", kWestern), "\xC4\x80") << "and not A";
  EXPECT_EQ(EncodeInCodePage(u"é\U0001F600", kWestern), "\xC3\xA9\xF0\x9F\x98\x80");
}

TEST(CodePageTextTest, SoDoesALineThatWouldBeTakenForUtf8) {
  EXPECT_EQ(EncodeInCodePage(u"é\nÃ©\n", kWestern), "\xC3\xA9\n\xC3\x83\xC2\xA9\n");
  EXPECT_EQ(EncodeInCodePage(u"ï»¿é", kWestern), "\xC3\xAF\xC2\xBB\xC2\xBF\xC3\xA9") << "a mark";
}

TEST(CodePageTextTest, EachLineIsReadByItself) {
  const std::string log = EncodeInCodePage(u"[1]β\r\n", kGreek) +
                          EncodeInCodePage(u"[2]日\r\n", kGreek) +
                          EncodeInCodePage(u"[3]γ\r\n", kGreek) + "[4]\xCE\xB1\xE1";
  EXPECT_EQ(DecodeInCodePage(log, kGreek), u"[1]β\r\n[2]日\r\n[3]γ\r\n[4]Ξ±α");
  EXPECT_EQ(DecodeInCodePage("\xEF\xBB\xBF\xE2\n\xE2", kGreek), u"β\nβ");
}

TEST(CodePageTextTest, NothingIsLostInAnyPage) {
  for (const unsigned page : kAll) {
    for (const std::u16string& text :
         {EveryCharacter(1, 0x17F), EveryCharacter(0x370, 0x5FF), EveryCharacter(0x1E00, 0x33FF),
          EveryCharacter(0x4E00, 0xD7FF), EveryCharacter(0xE000, 0xFEFE),
          EveryCharacter(0xFF00, 0xFFFD), std::u16string(u"a\0b\0", 4)}) {
      EXPECT_TRUE(DecodeInCodePage(EncodeInCodePage(text, page), page) == text) << page;
      for (const char16_t c : text) {
        const std::u16string one(1, c);
        ASSERT_TRUE(DecodeInCodePage(EncodeInCodePage(one, page), page) == one)
            << page << ' ' << int(c);
      }
    }
  }
}

// One byte more or less, so that a character of two bytes lies on every bound.
TEST(CodePageTextTest, LongLinesOfLongCharactersStayWhole) {
  std::u16string text;
  for (int i = 0; i < 100'000; ++i) text += u"表ソ";
  for (const std::u16string begin : {u"", u"a"}) {
    const std::string bytes = EncodeInCodePage(begin + text, kJapanese);
    EXPECT_EQ(bytes.size(), begin.size() + 2 * text.size());
    EXPECT_TRUE(DecodeInCodePage(bytes, kJapanese) == begin + text);
  }
}

TEST(CodePageTextTest, TheSystemsPageIsTheOneInForce) {
  const std::u16string text = u"é β 表";
  EXPECT_EQ(EncodeLocal(text), EncodeInCodePage(text, ::GetACP()));
  EXPECT_EQ(DecodeLocal("\xE9\xE2"), DecodeInCodePage("\xE9\xE2", ::GetACP()));
}

}  // namespace
}  // namespace verlume::qt
