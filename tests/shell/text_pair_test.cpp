#include "shell/text_pair.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

constexpr TextPair kPair = {u"%1 calls %2, 100%", u"Ο %2 καλείται από τον %1"};

TEST(TextPairTest, TheValuesStandInTheLanguagesOwnOrder) {
  EXPECT_EQ(kPair.Fill(false, {u"Ann", u"Bob"}), u"Ann calls Bob, 100%");
  EXPECT_EQ(kPair.Fill(true, {u"Ann", u"Bob"}), u"Ο Bob καλείται από τον Ann");
}

TEST(TextPairTest, AValueIsNeverFilledInItself) {
  EXPECT_EQ(kPair.Fill(false, {u"%2", u"%1"}), u"%2 calls %1, 100%");
  EXPECT_EQ(kPair.Fill(false, {u"%1%2%", u"1%"}), u"%1%2% calls 1%, 100%");
}

TEST(TextPairTest, WhatNamesNoValueStays) {
  const TextPair pair = {u"%0 %3 %% %", u""};
  EXPECT_EQ(pair.Fill(false, {u"Ann", u"Bob"}), u"%0 %3 %% %");
}

}  // namespace
}  // namespace verlume
