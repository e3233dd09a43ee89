#include "richtext/look_budget.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace verlume::richtext {
namespace {

using namespace look_budget;

// A format for each letter.
Document Letters(std::size_t count) {
  Document document;
  document.fonts.emplace_back();
  for (std::size_t i = 0; i < count; ++i) {
    document.text += u'a';
    document.runs.push_back({1, {.bold = i % 2 == 1}});
  }
  return document;
}

std::size_t LengthOf(const std::vector<Run>& runs) {
  std::size_t length = 0;
  for (const Run& run : runs) length += run.length;
  return length;
}

TEST(LookBudgetTest, AShortTextKeepsAFormatForEachLetter) {
  Document document = Letters(kFreeFormatChanges);
  KeepWithinBudget(document);
  EXPECT_EQ(document, Letters(kFreeFormatChanges));
}

TEST(LookBudgetTest, TextBeyondTheBudgetGoesOnInTheLastFormat) {
  const std::size_t length = 100 * kFreeFormatChanges;
  Document document = Letters(length);
  KeepWithinBudget(document);
  EXPECT_EQ(document.text, Letters(length).text);
  EXPECT_EQ(LengthOf(document.runs), length);
  EXPECT_LE(document.runs.size(), kFreeFormatChanges + length / kCharactersPerFormatChange + 1);
  EXPECT_GE(document.runs.size(), kFreeFormatChanges);
  EXPECT_TRUE(std::ranges::adjacent_find(document.runs, {}, &Run::format) == document.runs.end());
}

TEST(LookBudgetTest, WordsKeepTheirFormatsHoweverLongTheTextIs) {
  Document document;
  document.fonts.emplace_back();
  for (int i = 0; i < 10'000; ++i) {
    document.text.append(kCharactersPerFormatChange, u'a');
    document.runs.push_back({kCharactersPerFormatChange, {.bold = i % 2 == 1}});
  }
  const Document before = document;
  KeepWithinBudget(document);
  EXPECT_EQ(document, before);
}

TEST(LookBudgetTest, LineBreaksBeyondTheBudgetBecomeBlanks) {
  const std::u16string most(kMostParagraphs - 1, u'\n');
  Document document{most + u"a\nb\u2029c", {{most.size() + 5, {}}}, {{}}};
  KeepWithinBudget(document);
  EXPECT_EQ(document.text, most + u"a b c");
}

TEST(LookBudgetTest, AnEmptyDocumentStaysEmpty) {
  Document document;
  KeepWithinBudget(document);
  EXPECT_EQ(document, Document());
}

}  // namespace
}  // namespace verlume::richtext
