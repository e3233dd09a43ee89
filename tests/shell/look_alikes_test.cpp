#include "shell/look_alikes.h"

#include <gtest/gtest.h>

#include <string>

#include "shell/look_alike_tables.h"

namespace verlume {
namespace {

struct Names {
  std::u16string_view one;
  std::u16string_view other;
};

std::string Shown(const Names& names) {
  std::string text;
  for (const std::u16string_view name : {names.one, names.other}) {
    for (const char16_t c : name) text += std::to_string(c) + ' ';
    text += "/ ";
  }
  return text;
}

void ExpectAlike(std::initializer_list<Names> all, bool alike) {
  for (const Names& names : all) {
    EXPECT_EQ(ReadAlike(names.one, names.other), alike) << Shown(names);
    EXPECT_EQ(ReadAlike(names.other, names.one), alike) << Shown(names);
    EXPECT_EQ(ReadName(names.one).ReadsLike(ReadName(names.other)), alike) << Shown(names);
  }
}

TEST(LookAlikes, ANameReadsLikeItself) {
  ExpectAlike({{u"Alice", u"Alice"}, {u"Νίκος", u"Νίκος"}, {u"Борис", u"Борис"}, {u"7", u"7"}},
              true);
}

TEST(LookAlikes, OtherNamesDoNot) {
  ExpectAlike({{u"Alice", u"Bob"},
               {u"Alice", u"Alic"},
               {u"Alice", u"Alice2"},
               {u"Νίκος", u"Νίκη"},
               {u"Nick", u"Vick"},
               {u"Ali", u"All"},
               {u"Ann B", u"AnnB"},
               {u"Борис", u"Бобик"},
               {u"1", u"2"}},
              false);
}

TEST(LookAlikes, CaseAndAccentsDoNotCount) {
  ExpectAlike({{u"alice", u"ALICE"},
               {u"ΝΙΚΟΣ", u"νίκος"},
               {u"Νίκος", u"νικοσ"},
               {u"БОРИС", u"борис"},
               {u"Zoë", u"Zoe"},
               {u"Zoe\u0308", u"Zoë"},
               {u"Ανθή", u"ανθη"},
               {u"Ἀνθή", u"Ανθη"},
               {u"Ёжик", u"ежик"}},
              true);
}

TEST(LookAlikes, LettersOfOtherAlphabetsCount) {
  ExpectAlike({{u"Alice", u"\u0391lice"},            // Greek capital alpha
               {u"Alice", u"\u0410li\u0441\u0435"},  // Cyrillic A, es, ie
               {u"Νίκος", u"Nίκος"},                 // Latin N
               {u"νικος", u"vikoς"},                 // Latin v, i, k, o
               {u"ΝΙΚΟΣ", u"NIKOΣ"},                 // Latin capitals
               {u"Νίκος", u"NIKOΣ"},                 // and in another case
               {u"BOB", u"\u0412\u041E\u0392"},      // Cyrillic Ve, O, Greek Beta
               {u"Γιώργος", u"\u0413ιώργος"},        // Cyrillic ghe
               {u"Bob", u"\uFF22\uFF4F\uFF42"}},     // full width
              true);
}

TEST(LookAlikes, StrokesAndRingsCount) {
  ExpectAlike({{u"Alice", u"AIice"},
               {u"Alice", u"A1ice"},
               {u"Alice", u"A|ice"},
               {u"Bob", u"B0b"},
               {u"Emma", u"Ernrna"},
               {u"Ilias", u"llias"},
               {u"Ilias", u"Ιlias"}},
              true);
}

TEST(LookAlikes, WhatHasNoWidthAndMoreBlanksDoNotCount) {
  ExpectAlike({{u"Alice", u"Al\u200Bice"},
               {u"Alice", u"\u202EAlice\u202C"},
               {u"Alice", u"Al\u200D\u00ADice"},
               {u"Alice", u" Alice\u00A0"},
               {u"Ann B", u"Ann \u2003 B"}},
              true);
}

TEST(LookAlikes, NothingReadsLikeNoName) {
  ExpectAlike({{u"", u""}, {u"", u"Bob"}, {u" \u200B", u""}}, false);
}

TEST(LookAlikes, EveryCharacterOfATableHasItsPartner) {
  using namespace look_alike_tables;
  const auto expectPairs = [](const Replacement& replacement) {
    ASSERT_EQ(replacement.from.size(), replacement.to.size());
    for (std::size_t i = 0; i < replacement.from.size(); ++i) {
      EXPECT_TRUE(ReadAlike(replacement.from.substr(i, 1), replacement.to.substr(i, 1)))
          << Shown({replacement.from.substr(i, 1), replacement.to.substr(i, 1)});
    }
  };
  for (const Replacement& replacement : kSameShape) expectPairs(replacement);
  expectPairs(kSameStroke);
  for (const auto& [from, to] : kUnaccented) {
    for (std::size_t i = 0; i < from.size(); ++i) {
      EXPECT_TRUE(ReadAlike(from.substr(i, 1), {&to, 1})) << Shown({from.substr(i, 1), {&to, 1}});
    }
  }
}

}  // namespace
}  // namespace verlume
