#include "platform_qt/help/help_search.h"

#include <gtest/gtest.h>

#include "platform_qt/help/help_files.h"

namespace verlume::qt {
namespace {

QStringList Ids(const std::vector<HelpFinding>& findings) {
  QStringList ids;
  for (const HelpFinding& finding : findings) ids.append(finding.topic->id);
  return ids;
}

class HelpSearchTest : public testing::Test {
 protected:
  QStringList Found(const HelpBook& book, const QString& query) {
    return Ids(SearchHelp(book, query));
  }

  HelpBook english = SmallBook(false);
  HelpBook greek = SmallBook(true);
};

TEST_F(HelpSearchTest, CaseMakesNoDifference) {
  EXPECT_EQ(Found(english, "COMPUTERS"), QStringList{"welcome"});
  EXPECT_EQ(Found(english, "lamp"), QStringList{"waiting"});
}

TEST_F(HelpSearchTest, GreekCaseAndAccentsMakeNoDifference) {
  EXPECT_EQ(Found(greek, "ΚΛΗΣΗ"), QStringList{"welcome"});
  EXPECT_EQ(Found(greek, "κληση"), QStringList{"welcome"});
  EXPECT_EQ(Found(greek, "κλήσΉ"), QStringList{"welcome"});
  EXPECT_EQ(Found(greek, "υπολογιστέσ"), QStringList{"welcome"});
  // A combining accent.
  EXPECT_EQ(Found(greek, QString::fromUtf16(u"κλη\u0301ση")), QStringList{"welcome"});
}

TEST_F(HelpSearchTest, CommandsAreFoundAsTyped) {
  EXPECT_EQ(Found(english, "/wait"), QStringList{"waiting"});
  EXPECT_EQ(Found(greek, "/αναμονη 4000"), QStringList{"waiting"});
}

TEST_F(HelpSearchTest, EveryWordMustBeThere) {
  EXPECT_EQ(Found(english, "port lamp"), QStringList{"waiting"});
  EXPECT_EQ(Found(english, "lamp computers"), QStringList{});
}

TEST_F(HelpSearchTest, ATopicWhoseTitleSaysItComesFirst) {
  EXPECT_EQ(Found(english, "waiting"), (QStringList{"waiting", "welcome", "panel"}));
}

TEST_F(HelpSearchTest, AWordsStartCountsMoreThanItsInside) {
  EXPECT_EQ(Found(english, "port"), (QStringList{"waiting", "welcome", "panel"}))
      << "port, unimportant, important";
}

TEST_F(HelpSearchTest, NothingIsFoundForNothing) {
  EXPECT_EQ(Found(english, ""), QStringList{});
  EXPECT_EQ(Found(english, " \t "), QStringList{});
  EXPECT_EQ(Found(english, "zebra"), QStringList{});
  EXPECT_EQ(Found(HelpBook(), "a"), QStringList{});
}

TEST_F(HelpSearchTest, TheSnippetIsTheTextAroundTheHit) {
  const std::vector<HelpFinding> findings = SearchHelp(english, "ADDRESS");
  ASSERT_EQ(findings.size(), 1u);
  const QString snippet = findings[0].snippet;
  EXPECT_TRUE(snippet.contains("The address of this computer.") ||
              snippet.contains("Local address"))
      << snippet.toStdString();
  EXPECT_TRUE(snippet.startsWith(u'…'));
  EXPECT_FALSE(snippet.contains('<'));
  EXPECT_LT(snippet.size(), 140);
}

TEST_F(HelpSearchTest, TheSnippetOfAShortTextIsTheWholeOfIt) {
  EXPECT_EQ(SearchHelp(english, "lamp").at(0).snippet, english.Topic("waiting")->text);
}

TEST_F(HelpSearchTest, FoldingKeepsEveryPlace) {
  const QString text = QString::fromUtf16(u"ΐ Ἄς ΌΣΟ ß ﬁ \u00A0 😀 e\u0301");
  EXPECT_EQ(FoldForSearch(text).size(), text.size());
  EXPECT_EQ(FoldForSearch(text).left(8), "ι ασ οσο");
}

TEST_F(HelpSearchTest, WordsAreFoundWhereTheyStand) {
  const std::vector<TextSpan> spans = FindWords("Κλήση, κλήσεις· θύρα", "ΘΥΡΑ κλησ");
  ASSERT_EQ(spans.size(), 3u);
  EXPECT_EQ(spans[0].start, 0);
  EXPECT_EQ(spans[0].length, 4);
  EXPECT_EQ(spans[1].start, 7);
  EXPECT_EQ(spans[2].start, 16);
  EXPECT_TRUE(FindWords("text", "").empty());
}

}  // namespace
}  // namespace verlume::qt
