#include "shell/conversions.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/run_time_failure.h"

namespace verlume {
namespace {

// The number of the failure that the conversion throws, if any.
template <class Convert>
std::optional<FailureNumber> FailureOf(Convert convert, std::u16string_view text) {
  try {
    (void)convert(text);
    return std::nullopt;
  } catch (const RunTimeFailure& failure) {
    return failure.number;
  }
}

TEST(Conversions, BooleanTakesItsWordsInAnyCase) {
  EXPECT_TRUE(BooleanOf(u"True"));
  EXPECT_TRUE(BooleanOf(u" tRUE\t"));
  EXPECT_FALSE(BooleanOf(u"False"));
  EXPECT_FALSE(BooleanOf(u"FALSE"));
}

TEST(Conversions, BooleanTakesNumbers) {
  EXPECT_FALSE(BooleanOf(u"0"));
  EXPECT_FALSE(BooleanOf(u"-0.0"));
  EXPECT_TRUE(BooleanOf(u"1"));
  EXPECT_TRUE(BooleanOf(u"-1"));
  EXPECT_TRUE(BooleanOf(u"0.25"));
}

TEST(Conversions, BooleanOfAnythingElseIsATypeMismatch) {
  for (const std::u16string_view text : {u"maybe", u"", u"  ", u"Tru", u"Truee", u"Yes", u"1x"}) {
    EXPECT_EQ(FailureOf(BooleanOf, text), FailureNumber::TypeMismatch);
  }
}

TEST(Conversions, NumberTakesDecimals) {
  EXPECT_EQ(NumberOf(u"10.5"), 10.5);
  EXPECT_EQ(NumberOf(u"  9 "), 9);
  EXPECT_EQ(NumberOf(u"+8"), 8);
  EXPECT_EQ(NumberOf(u"-3"), -3);
  EXPECT_EQ(NumberOf(u".5"), 0.5);
  EXPECT_EQ(NumberOf(u"1e3"), 1000);
}

TEST(Conversions, NumberOfAnythingElseIsATypeMismatch) {
  for (const std::u16string_view text : {u"big", u"", u"10,5", u"1 0", u"10pt", u"inf", u"nan",
                                         u"0x10", u"--1", u"+-1", u"1e", u"٣", u"."}) {
    EXPECT_EQ(FailureOf(NumberOf, text), FailureNumber::TypeMismatch);
  }
}

TEST(Conversions, ANumberBeyondAllNumbersOverflows) {
  EXPECT_EQ(FailureOf(NumberOf, u"1e999"), FailureNumber::Overflow);
}

TEST(Conversions, IntegerRoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(IntegerOf(u"255"), 255);
  EXPECT_EQ(IntegerOf(u"2.5"), 2);
  EXPECT_EQ(IntegerOf(u"3.5"), 4);
  EXPECT_EQ(IntegerOf(u"-1.6"), -2);
}

TEST(Conversions, IntegerHoldsThirtyTwoBits) {
  EXPECT_EQ(IntegerOf(u"2147483647"), 2147483647);
  EXPECT_EQ(IntegerOf(u"-2147483648"), -2147483647 - 1);
  EXPECT_EQ(FailureOf(IntegerOf, u"2147483648"), FailureNumber::Overflow);
  EXPECT_EQ(FailureOf(IntegerOf, u"-2147483649"), FailureNumber::Overflow);
  EXPECT_EQ(FailureOf(IntegerOf, u"1e300"), FailureNumber::Overflow);
  EXPECT_EQ(FailureOf(IntegerOf, u"red"), FailureNumber::TypeMismatch);
}

TEST(Conversions, NumericPrefixStopsWhereTheNumberDoes) {
  EXPECT_EQ(NumericPrefixOf(u"1"), 1);
  EXPECT_EQ(NumericPrefixOf(u" 1abc"), 1);
  EXPECT_EQ(NumericPrefixOf(u"1 2"), 1);
  EXPECT_EQ(NumericPrefixOf(u"-1"), -1);
  EXPECT_EQ(NumericPrefixOf(u"1.5.2"), 1.5);
  EXPECT_EQ(NumericPrefixOf(u"1e"), 1);
}

TEST(Conversions, NumericPrefixOfNoNumberIsZero) {
  for (const std::u16string_view text :
       {u"", u"abc", u"x1", u"inf", u"nan", u"+", u"e1", u"1e999"}) {
    EXPECT_EQ(NumericPrefixOf(text), 0);
  }
}

TEST(Conversions, WritesWhatItReads) {
  EXPECT_EQ(BooleanText(true), u"True");
  EXPECT_EQ(BooleanText(false), u"False");
  EXPECT_EQ(NumberText(10.5), u"10.5");
  EXPECT_EQ(NumberText(9), u"9");
  EXPECT_EQ(NumberOf(NumberText(8.1)), 8.1);
}

TEST(Conversions, PadsWithZerosUpToTheWidth) {
  EXPECT_EQ(ZeroPaddedText(7, 2), u"07");
  EXPECT_EQ(ZeroPaddedText(0, 2), u"00");
  EXPECT_EQ(ZeroPaddedText(123, 2), u"123");
}

}  // namespace
}  // namespace verlume
