#include "stream/utf8_text.h"

#include <gtest/gtest.h>

namespace verlume::stream {
namespace {

TEST(Utf8TextTest, EveryCharacterComesBack) {
  const std::u16string text(u"a\0\u00E9\u03B1\u20AC\uFEFF\U0001F600z", 9);
  EXPECT_EQ(DecodeUtf8(EncodeUtf8(text)), text);
  EXPECT_EQ(EncodeUtf8(u"\u03B1\u20AC\U0001F600"), "\xCE\xB1\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Utf8TextTest, HalfASurrogatePairIsReplaced) {
  const std::u16string halves{u'a', char16_t{0xD83D}, u'b', char16_t{0xDE00}, char16_t{0xD83D}};
  EXPECT_EQ(DecodeUtf8(EncodeUtf8(halves)), u"a\uFFFDb\uFFFD\uFFFD");
}

TEST(Utf8TextTest, EachInvalidByteIsReplaced) {
  EXPECT_EQ(DecodeUtf8("a\xFF"
                       "b\xE5"),
            u"a\uFFFDb\uFFFD");
  EXPECT_EQ(DecodeUtf8("\xC0\x80"), u"\uFFFD\uFFFD");
  EXPECT_EQ(DecodeUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
}

TEST(Utf8TextTest, ACutNeverSplitsACharacter) {
  const std::string bytes = "ab\xF0\x9F\x98\x80z";
  EXPECT_EQ(CutUtf8(bytes, 2), "ab");
  for (const std::size_t limit : {3u, 4u, 5u}) EXPECT_EQ(CutUtf8(bytes, limit), "ab");
  EXPECT_EQ(CutUtf8(bytes, 6), bytes.substr(0, 6));
  EXPECT_EQ(CutUtf8(bytes, 99), bytes);
  EXPECT_EQ(CutUtf8("\x80\x80\x80\x80\x80\x80", 5).size(), 5u);
}

TEST(Utf8TextTest, WhatIsWholeEndsBeforeACharacterThatIsNot) {
  const std::string bytes = "ab\xF0\x9F\x98\x80";
  EXPECT_EQ(WholeUtf8(bytes), bytes);
  for (const std::size_t missing : {1u, 2u, 3u}) {
    EXPECT_EQ(WholeUtf8(bytes.substr(0, bytes.size() - missing)), "ab") << missing;
  }
  EXPECT_EQ(WholeUtf8("\x80\x80\x80\x80\x80").size(), 5u);
  EXPECT_EQ(WholeUtf8(""), "");
}

}  // namespace
}  // namespace verlume::stream
