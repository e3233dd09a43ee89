#include "platform_qt/fonts/missing_parts.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace verlume::qt {
namespace {

bool ShowsMost(QChar::Script script) {
  return script != QChar::Script_Devanagari && script != QChar::Script_Gothic;
}

using Parts = std::vector<std::pair<qsizetype, qsizetype>>;

Parts PartsOf(QStringView text) {
  Parts parts;
  for (const TextPart& part : PartsInMissingScripts(text, ShowsMost)) {
    parts.emplace_back(part.start, part.length);
  }
  return parts;
}

TEST(MissingParts, PartsReachToTheNextScript) {
  EXPECT_EQ(PartsOf(u"abc \u0391 \u05D0"), Parts{});
  EXPECT_EQ(PartsOf(u"ab \u0915\u0916 1, c"), (Parts{{3, 6}}));
  EXPECT_EQ(PartsOf(u"a\u0915a\u0915"), (Parts{{1, 1}, {3, 1}}));
}

TEST(MissingParts, WhatStandsBeforeTheFirstLetterGoesWithIt) {
  EXPECT_EQ(PartsOf(u"1. \u0915 a"), (Parts{{0, 5}}));
  EXPECT_EQ(PartsOf(u"1. a \u0915"), (Parts{{5, 1}}));
}

TEST(MissingParts, AMarkGoesWithItsLetter) {
  EXPECT_EQ(PartsOf(u"a\u093Fb"), Parts{});
  EXPECT_EQ(PartsOf(u"\u0915\u0301"), (Parts{{0, 2}}));
}

TEST(MissingParts, LettersOfTwoUnits) {
  EXPECT_EQ(PartsOf(u"a\U00010330\U00010331b"), (Parts{{1, 4}}));
  EXPECT_EQ(PartsOf(u"\xD800 \u0915"), (Parts{{0, 3}}));
}

TEST(MissingParts, BoxesStandForTheirLettersAlone) {
  EXPECT_EQ(WithBoxes("a \u0915\u093F 1, b\u0391", ShowsMost), "a \u25A1\u25A1 1, b\u0391");
  EXPECT_EQ(WithBoxes("a \U00010330", ShowsMost), "a \u25A1\u25A1");
  EXPECT_EQ(WithBoxes("", ShowsMost), "");
}

}  // namespace
}  // namespace verlume::qt
