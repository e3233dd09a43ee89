#include "shell/ini_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace std::string_literals;

namespace verlume::ini_text {
namespace {

std::u16string ReadOr(std::u16string_view text, std::u16string_view section,
                      std::u16string_view key, std::u16string_view missing = u"<missing>") {
  return std::u16string(Read(text, section, key).value_or(missing));
}

TEST(IniTextRead, FindsTheKeyInItsSection) {
  const std::u16string_view text = u"[A]\r\nKey=1\r\n[B]\r\nKey=2\r\n";
  EXPECT_EQ(ReadOr(text, u"A", u"Key"), u"1");
  EXPECT_EQ(ReadOr(text, u"B", u"Key"), u"2");
  EXPECT_EQ(ReadOr(text, u"C", u"Key"), u"<missing>");
  EXPECT_EQ(ReadOr(text, u"A", u"Other"), u"<missing>");
}

TEST(IniTextRead, ComparesNamesWithoutCase) {
  EXPECT_EQ(ReadOr(u"[GENERAL]\nnickNAME=Bob", u"General", u"Nickname"), u"Bob");
}

TEST(IniTextRead, KeysOutsideEverySectionAreNotFound) {
  EXPECT_EQ(ReadOr(u"Key=1\n[A]\n", u"A", u"Key"), u"<missing>");
  EXPECT_EQ(ReadOr(u"Key=1\n", u"", u"Key"), u"<missing>");
}

TEST(IniTextRead, StripsBlanksAroundNamesAndValues) {
  EXPECT_EQ(ReadOr(u" \t[ A\t] \n\t Key \t=  two words \t", u"A", u"Key"), u"two words");
}

TEST(IniTextRead, StripsOnePairOfQuotes) {
  EXPECT_EQ(ReadOr(u"[A]\nK=\" x \"", u"A", u"K"), u" x ");
  EXPECT_EQ(ReadOr(u"[A]\nK= 'x' ", u"A", u"K"), u"x");
  EXPECT_EQ(ReadOr(u"[A]\nK=\"'x'\"", u"A", u"K"), u"'x'");
  EXPECT_EQ(ReadOr(u"[A]\nK=\"\"", u"A", u"K"), u"");
}

TEST(IniTextRead, KeepsQuotesThatAreNoPair) {
  EXPECT_EQ(ReadOr(u"[A]\nK=\"x'", u"A", u"K"), u"\"x'");
  EXPECT_EQ(ReadOr(u"[A]\nK=\"", u"A", u"K"), u"\"");
  EXPECT_EQ(ReadOr(u"[A]\nK=x\"", u"A", u"K"), u"x\"");
}

TEST(IniTextRead, AnEmptyValueIsThere) {
  EXPECT_EQ(ReadOr(u"[A]\nK=\n", u"A", u"K"), u"");
  EXPECT_EQ(ReadOr(u"[A]\nK=", u"A", u"K"), u"");
}

TEST(IniTextRead, SkipsCommentsAndLinesWithoutEqualsSign) {
  EXPECT_EQ(ReadOr(u"[A]\n;K=1\n  ; K=2\nK\nK=3", u"A", u"K"), u"3");
  EXPECT_EQ(ReadOr(u"[A]\nK\n", u"A", u"K"), u"<missing>");
  EXPECT_EQ(ReadOr(u";[A]\nK=1\n", u"A", u"K"), u"<missing>");
}

TEST(IniTextRead, TheValueMayHoldEqualsSignsAndSemicolons) {
  EXPECT_EQ(ReadOr(u"[A]\nK=a=b;c", u"A", u"K"), u"a=b;c");
}

TEST(IniTextRead, TheFirstSectionAndKeyCount) {
  const std::u16string_view text = u"[A]\nK=1\nK=2\n[A]\nK=3\nL=4\n";
  EXPECT_EQ(ReadOr(text, u"A", u"K"), u"1");
  EXPECT_EQ(ReadOr(text, u"A", u"L"), u"<missing>");
}

TEST(IniTextRead, TakesEveryKindOfLineEnd) {
  EXPECT_EQ(ReadOr(u"[A]\rK=1\rL=2\r", u"A", u"L"), u"2");
  EXPECT_EQ(ReadOr(u"[A]\r\n\r\nK=1\r\n", u"A", u"K"), u"1");
  EXPECT_EQ(ReadOr(u"[A]\n\rK=1\n\r", u"A", u"K"), u"1");
}

TEST(IniTextRead, IgnoresAnEditorsByteOrderMark) {
  EXPECT_EQ(ReadOr(u"\uFEFF[A]\nK=1\n", u"A", u"K"), u"1");
}

TEST(IniTextRead, ABracketThatIsNotClosedIsNoSection) {
  EXPECT_EQ(ReadOr(u"[A]\n[B\nK=1\n", u"A", u"K"), u"1");
  EXPECT_EQ(ReadOr(u"[A] trailing words\nK=1\n", u"A", u"K"), u"1");
}

TEST(IniTextWrite, StartsAnEmptyFile) {
  EXPECT_EQ(Write(u"", u"General", u"Language", u"0"), u"[General]\r\nLanguage=0\r\n");
}

TEST(IniTextWrite, ReplacesTheValueAndNothingElse) {
  const std::u16string_view text = u"; mine\n[A]\n  k =  old  \n\n;k=old\n[B]\nK=old";
  EXPECT_EQ(Write(text, u"A", u"K", u"new"), u"; mine\n[A]\n  k =new\n\n;k=old\n[B]\nK=old");
  EXPECT_EQ(Write(text, u"B", u"K", u"new"), u"; mine\n[A]\n  k =  old  \n\n;k=old\n[B]\nK=new");
}

TEST(IniTextWrite, ReplacesTheFirstOfEqualKeys) {
  EXPECT_EQ(Write(u"[A]\nK=1\nK=2\n[A]\nK=3\n", u"A", u"K", u"9"), u"[A]\nK=9\nK=2\n[A]\nK=3\n");
}

TEST(IniTextWrite, AddsAKeyAtTheEndOfItsSectionBeforeItsTrailingBlankLines) {
  EXPECT_EQ(Write(u"[A]\r\nK=1\r\n \r\n\r\n[B]\r\n", u"A", u"L", u"2"),
            u"[A]\r\nK=1\r\nL=2\r\n \r\n\r\n[B]\r\n");
  EXPECT_EQ(Write(u"[A]\n\nK=1\n", u"A", u"L", u"2"), u"[A]\n\nK=1\nL=2\n");
  EXPECT_EQ(Write(u"[A]\n\n\n", u"A", u"L", u"2"), u"[A]\nL=2\n\n\n");
  EXPECT_EQ(Write(u"[A]\n[B]\nL=3\n", u"A", u"L", u"2"), u"[A]\nL=2\n[B]\nL=3\n");
}

TEST(IniTextWrite, AppendsAMissingSection) {
  EXPECT_EQ(Write(u"[A]\nK=1\n", u"B", u"L", u"2"), u"[A]\nK=1\n[B]\nL=2\n");
  EXPECT_EQ(Write(u"[A]\nK=1\n\n", u"B", u"L", u"2"), u"[A]\nK=1\n\n[B]\nL=2\n");
}

TEST(IniTextWrite, EndsALastLineThatIsOpenBeforeAddingToIt) {
  EXPECT_EQ(Write(u"[A]\nK=1", u"A", u"L", u"2"), u"[A]\nK=1\nL=2\n");
  EXPECT_EQ(Write(u"[A]\nK=1", u"B", u"L", u"2"), u"[A]\nK=1\n[B]\nL=2\n");
  EXPECT_EQ(Write(u"[A]", u"A", u"L", u"2"), u"[A]\r\nL=2\r\n");
  EXPECT_EQ(Write(u"[A]\nK=1", u"A", u"K", u"2"), u"[A]\nK=2");
}

TEST(IniTextWrite, KeepsTheKindOfLineEnd) {
  EXPECT_EQ(Write(u"[A]\rK=1\r", u"B", u"L", u"2"), u"[A]\rK=1\r[B]\rL=2\r");
  EXPECT_EQ(Write(u"[A]\r\nK=1\r\n", u"A", u"K", u"2"), u"[A]\r\nK=2\r\n");
  EXPECT_EQ(Write(u"[A]\r\nK=1\n", u"A", u"K", u"2"), u"[A]\r\nK=2\n");
}

TEST(IniTextWrite, KeepsTheByteOrderMarkAtTheStart) {
  EXPECT_EQ(Write(u"\uFEFF[A]\nK=1\n", u"A", u"K", u"2"), u"\uFEFF[A]\nK=2\n");
}

TEST(IniTextWrite, KeepsGarbageByteForByte) {
  const std::u16string garbage = u"\0\x1b=]\n[[\n=\n\xD800\uFFFF"s;
  const std::u16string written = Write(garbage, u"A", u"K", u"1");
  EXPECT_EQ(written.substr(0, garbage.size()), garbage);
  EXPECT_EQ(written.substr(garbage.size()), u"\n[A]\nK=1\n");
}

TEST(IniTextWrite, AValueStaysOnItsLine) {
  const std::u16string value = u"a\r\nb\0[c]"s;
  EXPECT_EQ(Write(u"", u"A", u"K", value), u"[A]\r\nK=a  b [c]\r\n");
}

TEST(IniTextWrite, TakesEveryCharacter) {
  const std::u16string value = u"Ωμέγα \U0001F600 %1 \\x";
  EXPECT_EQ(ReadOr(Write(u"", u"A", u"K", value), u"A", u"K"), value);
}

// For any text: what is written is read back, and only the old value is removed.
TEST(IniText, ReadsBackWhatItWroteIntoAnyText) {
  std::mt19937 random(20260307);
  const std::u16string alphabet = u"[]=;\"' \t\r\n\0AaKkB\uFEFFΩ"s;
  for (int round = 0; round < 20000; ++round) {
    std::u16string text;
    for (std::size_t length = random() % 40; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
    }
    const bool wasThere = Read(text, u"A", u"K").has_value();
    const std::u16string written = Write(text, u"A", u"K", u"value");
    ASSERT_EQ(ReadOr(written, u"a", u"k"), u"value");
    ASSERT_EQ(Write(written, u"A", u"K", u"value"), written);
    if (!wasThere) {
      ASSERT_GT(written.size(), text.size());
    }
  }
}

TEST(IniText, TakesTimeLinearInTheText) {
  std::u16string text = u"[A]\n" + std::u16string(2'000'000, u'x') + u"\n";
  for (int line = 0; line < 200'000; ++line) text += u"[]= \n";
  text += std::u16string(2'000'000, u' ') + u"=";
  EXPECT_EQ(ReadOr(Write(text, u"B", u"K", u"1"), u"B", u"K"), u"1");
}

}  // namespace
}  // namespace verlume::ini_text
