#include "platform_qt/text/seams.h"

#include <gtest/gtest.h>

#include <QPlainTextDocumentLayout>
#include <QTextCursor>
#include <random>
#include <string>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/rich_text.h"
#include "platform_qt/text/text_insertion.h"

namespace verlume::qt {
namespace {

class QtSeamsTest : public testing::Test {
 protected:
  void InsertAt(int position, std::u16string_view text) {
    QTextCursor cursor(&shown);
    cursor.setPosition(position);
    InsertText(cursor, text, Lines::Many);
  }
  int End() const { return shown.characterCount() - 1; }
  std::u16string Text() {
    QTextCursor cursor(&shown);
    cursor.select(QTextCursor::Document);
    return SelectedText(cursor, Lines::Many);
  }
  int CountSeams() const {
    int count = 0;
    for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
      count += BeginsAtSeam(block, Lines::Many);
    }
    return count;
  }
  // Corresponding positions in the text and in the document are at the same character.
  void ExpectPositionsFit() {
    const std::u16string text = Text();
    EXPECT_EQ(seams.TextPosition(End()), text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
      const int position = seams.DocumentPosition(at);
      ASSERT_EQ(seams.TextPosition(position), at);
      QTextCursor cursor(&shown);
      cursor.setPosition(position);
      cursor.setPosition(seams.DocumentPosition(at + 1), QTextCursor::KeepAnchor);
      ASSERT_EQ(SelectedText(cursor, Lines::Many), text.substr(at, 1)) << at;
    }
  }

  // Without a layout a document emits no contentsChange.
  QtSeamsTest() { shown.setDocumentLayout(new QPlainTextDocumentLayout(&shown)); }

  QTextDocument shown;
  Seams seams{shown, Lines::Many};
};

TEST_F(QtSeamsTest, ShortLinesHaveNoSeams) {
  InsertAt(0, u"a line\nand another\n\n");
  EXPECT_EQ(CountSeams(), 0);
  ExpectPositionsFit();
}

TEST_F(QtSeamsTest, ALongLineAmongOthersHasSeveralBlocksAndIsStillOneLine) {
  const std::u16string line(10'000, u'x');
  const std::u16string text = u"short\n" + line + u"\nlast";
  InsertAt(0, text);
  EXPECT_EQ(CountSeams(), 2);
  EXPECT_TRUE(Text() == text);
  ExpectPositionsFit();
}

TEST_F(QtSeamsTest, ALineThatGrowsBeyondItsBlockContinuesInAnother) {
  std::u16string text;
  for (int i = 0; i < 2'000; ++i) {
    InsertAt(End(), u"hello ");
    text += u"hello ";
  }
  EXPECT_GT(CountSeams(), 1);
  EXPECT_TRUE(Text() == text);
  ExpectPositionsFit();
}

TEST_F(QtSeamsTest, SeamsMoveWithTextInsertedBeforeThemAndVanishWithRemovedText) {
  InsertAt(0, std::u16string(6'000, u'x') + u"\n" + std::u16string(6'000, u'y'));
  InsertAt(0, u"before\n");
  ExpectPositionsFit();
  QTextCursor cursor(&shown);
  cursor.setPosition(seams.DocumentPosition(5'000), QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  EXPECT_EQ(CountSeams(), 1);
  EXPECT_TRUE(Text() == std::u16string(1'007, u'x') + u"\n" + std::u16string(6'000, u'y'));
  ExpectPositionsFit();
  shown.clear();
  EXPECT_EQ(seams.TextPosition(End()), 0u);
}

TEST_F(QtSeamsTest, LineBreaksBesideASeamAreLineBreaks) {
  InsertAt(0, std::u16string(6'000, u'x'));
  const int seam = shown.begin().next().position();
  const auto at = static_cast<std::size_t>(seam - 1);
  InsertAt(seam, u"\n");
  InsertAt(seam - 1, u"\n");
  EXPECT_TRUE(Text() == std::u16string(at, u'x') + u"\n\n" + std::u16string(6'000 - at, u'x'));
  ExpectPositionsFit();
}

TEST_F(QtSeamsTest, PositionsStayRightHoweverTextIsInsertedAndRemoved) {
  std::mt19937 random(1);
  for (int step = 0; step < 60; ++step) {
    const int place = static_cast<int>(random() % static_cast<unsigned>(End() + 1));
    if (random() % 3 > 0) {
      InsertAt(place, std::u16string(random() % 9'000, u'x') + (random() % 2 ? u"\n" : u""));
    } else {
      QTextCursor cursor(&shown);
      cursor.setPosition(place);
      cursor.setPosition(std::min(End(), place + static_cast<int>(random() % 9'000)),
                         QTextCursor::KeepAnchor);
      cursor.removeSelectedText();
    }
    const std::size_t length = Text().size();
    ASSERT_EQ(seams.TextPosition(End()), length) << step;
    for (std::size_t at = 0; at <= length; at += 997) {
      ASSERT_EQ(seams.TextPosition(seams.DocumentPosition(at)), at) << step;
    }
  }
}

TEST_F(QtSeamsTest, FormatsAreReadAcrossSeams) {
  richtext::Document document;
  document.text = std::u16string(6'000, u'x') + u"\n" + std::u16string(6'000, u'y');
  document.fonts = {{u"Arial", 161}};
  document.runs = {{7'000, {.bold = true}}, {5'001, {}}};
  QTextCursor cursor(&shown);
  InsertDocument(cursor, document, Lines::Many);
  EXPECT_GT(CountSeams(), 1);
  cursor.select(QTextCursor::Document);
  EXPECT_TRUE(SelectedDocument(cursor, 161, Lines::Many) == document);
}

}  // namespace
}  // namespace verlume::qt
