#include "shell/nickname.h"

#include <gtest/gtest.h>

#include "shell/app_state.h"

namespace verlume {
namespace {

using namespace std::literals;

TEST(ShowableNicknameTest, AnOrdinaryNicknameIsItself) {
  for (const std::u16string_view nickname :
       {u"Bob"sv, u"Ελένη"sv, u"Łukasz"sv, u"\U0001F600 Ann"sv, u"<b>R&D</b> %1 \\par {x}"sv,
        u" Ann  Lee "sv, u"שרה"sv, u""sv}) {
    EXPECT_EQ(ShowableNickname(nickname), nickname);
  }
}

TEST(ShowableNicknameTest, AControlCharacterIsSeenAsAnEscape) {
  EXPECT_EQ(ShowableNickname(u"a\0b"sv), u"a\\x00b");
  EXPECT_EQ(ShowableNickname(u"\x07\r\n\t"), u"\\x07\\x0D\\x0A\\x09");
  EXPECT_EQ(ShowableNickname(u"\x1F \x7F\x80\x9F"), u"\\x1F \\x7F\\x80\\x9F");
  EXPECT_EQ(ShowableNickname(u"~\u00A1"), u"~\u00A1");
}

TEST(ShowableNicknameTest, ALineSeparatorIsSeenAsAnEscape) {
  EXPECT_EQ(ShowableNickname(u"a\u2028b\u2029c"), u"a\\u2028b\\u2029c");
}

TEST(ShowableNicknameTest, EveryBidirectionalControlIsSeenAsAnEscape) {
  EXPECT_EQ(ShowableNickname(u"\u061C\u200E\u200F"), u"\\u061C\\u200E\\u200F");
  EXPECT_EQ(ShowableNickname(u"\u202A\u202B\u202C\u202D\u202E"),
            u"\\u202A\\u202B\\u202C\\u202D\\u202E");
  EXPECT_EQ(ShowableNickname(u"\u2066\u2067\u2068\u2069"), u"\\u2066\\u2067\\u2068\\u2069");
}

TEST(ShowableNicknameTest, ACharacterWithoutWidthIsSeenAsAnEscape) {
  EXPECT_EQ(ShowableNickname(u"a\u00ADb\u200B\u2060\uFEFF"), u"a\\xADb\\u200B\\u2060\\uFEFF");
  EXPECT_EQ(ShowableNickname(u"\u180E\u2063\u206F\uFFFA"), u"\\u180E\\u2063\\u206F\\uFFFA");
}

TEST(ShowableNicknameTest, HalfAPairIsSeenAsAnEscape) {
  EXPECT_EQ(ShowableNickname(u"a\xD83D"sv), u"a\\uD83D");
  EXPECT_EQ(ShowableNickname(u"\xDE00\xD83D"sv), u"\\uDE00\\uD83D");
}

TEST(ShowableNicknameTest, WhatIsLongerThanANicknameIsCut) {
  const std::u16string longest(kNicknameLimit, u'a');
  EXPECT_EQ(ShowableNickname(longest), longest);
  EXPECT_EQ(ShowableNickname(longest + u"b"), longest);
  EXPECT_EQ(ShowableNickname(std::u16string(1000000, u'a')), longest);
}

TEST(ShowableNicknameTest, NothingIsCutInTwo) {
  const std::u16string most(kNicknameLimit - 3, u'a');
  EXPECT_EQ(ShowableNickname(most + u"\u202E"), most);
  EXPECT_EQ(ShowableNickname(most + u"\x07"), most);
  EXPECT_EQ(ShowableNickname(most + u"bc\U0001F600"), most + u"bc");
  EXPECT_EQ(ShowableNickname(most + u"b\U0001F600"), most + u"b\U0001F600");
}

TEST(ShowableNicknameTest, WhatIsShownIsShowable) {
  for (char32_t c = 0; c <= 0xFFFF; ++c) {
    const std::u16string shown = ShowableNickname(std::u16string(1, static_cast<char16_t>(c)));
    ASSERT_EQ(ShowableNickname(shown), shown);
  }
}

}  // namespace
}  // namespace verlume
