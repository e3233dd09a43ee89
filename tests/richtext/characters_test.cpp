#include "richtext/characters.h"

#include <gtest/gtest.h>

#include <string>

namespace verlume::richtext {
namespace {

// All bytes, or all UTF-16 units, of a kind.
template <typename Ch, typename Kind>
std::basic_string<Ch> AllThatAre(Kind kind) {
  std::basic_string<Ch> all;
  for (unsigned code = 0; code < 1u << (8 * sizeof(Ch)); ++code) {
    if (kind(static_cast<Ch>(code))) all += static_cast<Ch>(code);
  }
  return all;
}

TEST(Characters, LettersAndDigitsAreThoseOfAscii) {
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  EXPECT_EQ(AllThatAre<char>(IsAsciiLetter<char>), letters);
  EXPECT_EQ(AllThatAre<char16_t>(IsAsciiLetter<char16_t>),
            std::u16string(letters.begin(), letters.end()));
  EXPECT_EQ(AllThatAre<char>(IsAsciiDigit<char>), "0123456789");
  EXPECT_EQ(AllThatAre<char16_t>(IsAsciiDigit<char16_t>), u"0123456789");
}

TEST(Characters, HexadecimalDigitsHaveTheirValue) {
  EXPECT_EQ(AllThatAre<char>([](char each) { return HexDigitValue(each) >= 0; }),
            "0123456789ABCDEFabcdef");
  EXPECT_EQ(HexDigitValue('9'), 9);
  EXPECT_EQ(HexDigitValue(u'a'), 10);
  EXPECT_EQ(HexDigitValue(u'F'), 15);
}

TEST(Characters, ControlCharactersAreC0DelAndC1) {
  const std::u16string controls = AllThatAre<char16_t>(IsControlCharacter);
  EXPECT_EQ(controls.size(), 0x20u + 1 + 0x20);
  EXPECT_EQ(controls.front(), u'\0');
  EXPECT_EQ(controls.substr(0x1F, 3), u"\x1F\x7F\x80");
  EXPECT_EQ(controls.back(), u'\x9F');
}

TEST(Characters, APairIsAHighAndALowSurrogate) {
  EXPECT_TRUE(IsSurrogatePair(0xD800, 0xDC00));
  EXPECT_TRUE(IsSurrogatePair(0xDBFF, 0xDFFF));
  EXPECT_FALSE(IsSurrogatePair(0xDC00, 0xDC00));
  EXPECT_FALSE(IsSurrogatePair(0xD800, 0xE000));
  EXPECT_FALSE(IsSurrogatePair(0xD7FF, 0xDC00));
  EXPECT_EQ(AllThatAre<char16_t>(IsSurrogate).size(), 0x800u);
  EXPECT_TRUE(BeginsWithSurrogatePair(u"\U0001F600x"));
  EXPECT_FALSE(BeginsWithSurrogatePair(u"x\U0001F600"));
  EXPECT_FALSE(BeginsWithSurrogatePair(u""));
}

}  // namespace
}  // namespace verlume::richtext
