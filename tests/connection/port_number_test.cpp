#include "connection/port_number.h"

#include <gtest/gtest.h>

#include "platform/run_time_failure.h"

namespace verlume {
namespace {

bool IsAny(std::u16string_view text) {
  return IsPortNumber(text, kLeastPort, kGreatestPort);
}

template <class Body>
FailureNumber FailureOf(Body body) {
  try {
    body();
  } catch (const RunTimeFailure& failure) {
    return failure.number;
  }
  return FailureNumber{0};
}

TEST(PortNumberTest, DigitsWithAtMostOneSignAreANumber) {
  for (const auto text : {u"0", u"7", u"4000", u"32767", u"70000", u"2147483647", u"+4000", u"-0",
                          u"004000", u"00000000000000000004000"}) {
    EXPECT_TRUE(IsAny(text)) << testing::PrintToString(std::u16string(text));
  }
}

TEST(PortNumberTest, BlanksAroundTheNumberDoNotCount) {
  EXPECT_TRUE(IsAny(u" 4000"));
  EXPECT_TRUE(IsAny(u"4000  "));
  EXPECT_EQ(PortNumberOf(u"  4000 "), 4000);
}

TEST(PortNumberTest, AnythingElseIsNone) {
  for (const auto text :
       {u"",    u" ",    u"   ", u"abc",    u"4000x", u"x4000",    u"4000 x", u"40 00", u"4000.",
        u".5",  u"40.0", u"1e3", u"&h10",   u"0x10",  u"1,000",    u"+",      u"-",     u"+-1",
        u"--1", u"1-",   u"(5)", u"4000\t", u"٤٠٠٠",  u"４０００", u"+ 1"}) {
    EXPECT_FALSE(IsAny(text)) << testing::PrintToString(std::u16string(text));
  }
}

TEST(PortNumberTest, BothEndsOfTheRangeBelongToIt) {
  EXPECT_FALSE(IsPortNumber(u"9", 10, 20));
  EXPECT_TRUE(IsPortNumber(u"10", 10, 20));
  EXPECT_TRUE(IsPortNumber(u"20", 10, 20));
  EXPECT_FALSE(IsPortNumber(u"21", 10, 20));
  EXPECT_FALSE(IsAny(u"-1"));
  EXPECT_FALSE(IsAny(u"-2147483648"));
  EXPECT_TRUE(IsPortNumber(u"-2147483648", -2147483647 - 1, 0));
}

TEST(PortNumberTest, ANumberBeyond32BitsOverflows) {
  for (const auto text : {u"2147483648", u"4294967296", u"-2147483649", u"99999999999999999999",
                          u"18446744073709551617"}) {
    EXPECT_EQ(FailureOf([&] { IsAny(text); }), FailureNumber::Overflow)
        << testing::PrintToString(std::u16string(text));
  }
}

TEST(PortNumberTest, APortHas16BitsWithSign) {
  EXPECT_EQ(PortNumberOf(u"0"), 0);
  EXPECT_EQ(PortNumberOf(u"+4000"), 4000);
  EXPECT_EQ(PortNumberOf(u"32767"), 32767);
  EXPECT_EQ(FailureOf([] { PortNumberOf(u"32768"); }), FailureNumber::Overflow);
  EXPECT_EQ(FailureOf([] { PortNumberOf(u"65535"); }), FailureNumber::Overflow);
}

}  // namespace
}  // namespace verlume
