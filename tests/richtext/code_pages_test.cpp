#include "richtext/code_pages.h"

#include <gtest/gtest.h>

#include <set>

namespace verlume::richtext {
namespace {

constexpr int kPages[] = {1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 437, 850, 10000};

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  return bytes;
}

TEST(CodePagesTest, EveryByteOfGreekSurvivesDecodingAndEncoding) {
  EXPECT_EQ(EncodeGreek(DecodeGreek(AllBytes())), AllBytes());
}

TEST(CodePagesTest, GreekLettersAreThoseOfWindows1253) {
  EXPECT_EQ(DecodeGreek("\xc1\xe1\xf4\xd4\xb6\xa2\x80"), u"ΑατΤ¶Ά€");
  EXPECT_EQ(EncodeGreek(u"ΑατΤ¶Ά€"), "\xc1\xe1\xf4\xd4\xb6\xa2\x80");
}

TEST(CodePagesTest, UndefinedBytesOfGreekHaveTheSystemsCharacters) {
  EXPECT_EQ(DecodeByte(0x81, 1253), 0x81);
  EXPECT_EQ(DecodeByte(0x9F, 1253), 0x9F);
  EXPECT_EQ(DecodeByte(0xAA, 1253), 0xF8F9);
  EXPECT_EQ(DecodeByte(0xD2, 1253), 0xF8FA);
  EXPECT_EQ(DecodeByte(0xFF, 1253), 0xF8FB);
}

TEST(CodePagesTest, CharactersOutsideGreekBecomeOneQuestionMark) {
  EXPECT_EQ(EncodeGreek(u"éж漢"), "???");
  EXPECT_EQ(EncodeGreek(u"a😀b"), "a?b");
  EXPECT_EQ(EncodeGreek(std::u16string{u'a', 0xD83D, u'b'}), "a?b");
  EXPECT_EQ(EncodeGreek(std::u16string{0xDE00, 0xD83D}), "??");
  EXPECT_EQ(EncodeGreek(std::u16string(1, u'\0')), std::string(1, '\0'));
}

TEST(CodePagesTest, EveryPageHasDifferentCharactersForItsBytes) {
  for (const int page : kPages) {
    std::set<char16_t> characters;
    for (int byte = 0; byte < 256; ++byte) {
      characters.insert(DecodeByte(static_cast<unsigned char>(byte), page));
    }
    EXPECT_EQ(characters.size(), 256u) << page;
  }
}

TEST(CodePagesTest, EachPageDecodesItsOwnLetters) {
  const struct {
    int page;
    unsigned char byte;
    char16_t character;
  } cases[] = {{1250, 0xB9, u'ą'}, {1251, 0xE6, u'ж'}, {1252, 0xE9, u'é'}, {1253, 0xE1, u'α'},
               {1254, 0xFE, u'ş'}, {1255, 0xE0, u'א'}, {1256, 0xC7, u'ا'}, {1257, 0xE0, u'ą'},
               {1258, 0xFE, u'₫'}, {437, 0xE0, u'α'},  {850, 0xE1, u'ß'},  {10000, 0x8E, u'é'}};
  for (const auto& [page, byte, character] : cases) {
    EXPECT_EQ(DecodeByte(byte, page), character) << page;
  }
}

TEST(CodePagesTest, UnknownPagesDecodeAsWestern) {
  EXPECT_EQ(DecodeByte(0xE9, 932), u'é');
  EXPECT_EQ(DecodeByte(0x80, 0), u'€');
}

TEST(CodePagesTest, KnownPagesAreTheOnesWithATable) {
  for (const int page : kPages) EXPECT_TRUE(IsKnownCodePage(page)) << page;
  for (const int page : {0, 42, 932, 1249, 1259, 65001}) EXPECT_FALSE(IsKnownCodePage(page));
}

TEST(CodePagesTest, CharsetsNameTheirPage) {
  const struct {
    int charset;
    int page;
  } cases[] = {{0, 1252},   {1, 0},      {2, 0},      {77, 10000}, {128, 0},    {161, 1253},
               {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
               {238, 1250}, {254, 437},  {255, 850},  {-1, 0},     {1000, 0}};
  for (const auto& [charset, page] : cases) EXPECT_EQ(CodePageOfCharset(charset), page) << charset;
}

TEST(CodePagesTest, ValidUtf8IsDecoded) {
  EXPECT_EQ(DecodeUtf8OrGreek("abc"), u"abc");
  EXPECT_EQ(DecodeUtf8OrGreek("\xCE\xB1\xE2\x82\xAC\xF0\x9F\x98\x80"), u"α€😀");
}

TEST(CodePagesTest, ByteOrderMarkIsDroppedAtTheStartAlone) {
  EXPECT_EQ(DecodeUtf8OrGreek("\xEF\xBB\xBFone\xEF\xBB\xBF"), u"one\uFEFF");
  EXPECT_EQ(DecodeUtf8OrGreek("\xEF\xBB\xBF"), u"");
  EXPECT_EQ(DecodeUtf8OrGreek("\xEF\xBB"), u"ο»");
}

TEST(CodePagesTest, BytesThatAreNotUtf8AreGreek) {
  EXPECT_EQ(DecodeUtf8OrGreek("\xEA\xE1\xEB\xE7"), u"καλη");
  EXPECT_EQ(DecodeUtf8OrGreek("\xCE\xB1\xE1"), u"αα");
  EXPECT_EQ(DecodeUtf8OrGreek("\xC0\x80"), std::u16string({u'ΐ', u'€'}));  // overlong
  EXPECT_EQ(DecodeUtf8OrGreek("\xE0\x80\x80"), u"ΰ€€");
  EXPECT_EQ(DecodeUtf8OrGreek("\xF4\x90\x80\x80"), u"τ\u0090€€");  // above U+10FFFF
  EXPECT_EQ(DecodeUtf8OrGreek("\xED\xA0\x80"), u"ν\u00A0€");       // a surrogate
  EXPECT_EQ(DecodeUtf8OrGreek("\xE2\x82"), u"β‚");                 // cut off
}

}  // namespace
}  // namespace verlume::richtext
