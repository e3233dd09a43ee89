#include "platform_qt/text/text_insertion.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "platform_qt/convert/text.h"

namespace verlume::qt {
namespace {

int LongestBlock(const QTextDocument& document) {
  int longest = 0;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    longest = std::max(longest, block.length() - 1);
  }
  return longest;
}

TEST(QtTextInsertion, EveryKindOfLineEndBecomesOneLineBreak) {
  EXPECT_EQ(FromQt(SafeText(u"a\r\nb\rc\nd\r\r\ne", Lines::Many)), u"a\nb\nc\nd\n\ne");
}

TEST(QtTextInsertion, LineBreaksOfAnyKindBecomeBlanksInASingleLine) {
  EXPECT_EQ(FromQt(SafeText(u"a\r\nb\rc\nd\u2028e\u2029f", Lines::Single)), u"a b c d e f");
}

TEST(QtTextInsertion, SeparatorsBecomeLineBreaks) {
  EXPECT_EQ(FromQt(SafeText(u"a\u2028b\u2029c", Lines::Many)), u"a\nb\nc");
}

TEST(QtTextInsertion, ControlUnitsOfQtBecomeReplacementCharacters) {
  using namespace std::string_view_literals;
  EXPECT_EQ(FromQt(SafeText(u"a\0b\uFFFC"sv, Lines::Many)), u"a\uFFFDb\uFFFD");
  const std::u16string frame = {0xFDD0, u'x', 0xFDD1, 0xFDEF};
  EXPECT_EQ(FromQt(SafeText(frame, Lines::Many)), u"\uFFFDx\uFFFD\uFFFD");
}

TEST(QtTextInsertion, ByteOrderMarksAreCharactersLikeOthers) {
  for (const std::u16string text : {u"\uFEFFab", u"\uFFFEab"}) EXPECT_EQ(FromQt(ToQt(text)), text);
}

TEST(QtTextInsertion, LoneSurrogatesAndNoBreakSpacesStay) {
  const std::u16string odd = {0xD800, u'a', 0xDC00, 0x00A0};
  EXPECT_EQ(FromQt(SafeText(odd, Lines::Many)), odd);
}

TEST(QtTextInsertion, ALongSingleLineHasShortBlocksThatEndBehindAWord) {
  QTextDocument shown;
  QTextCursor cursor(&shown);
  InsertText(cursor, FromQt(QStringLiteral("hello, you there ").repeated(2'000)), Lines::Single);
  EXPECT_LE(LongestBlock(shown), 4096);
  EXPECT_EQ(shown.blockCount(), 9);
  for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
    EXPECT_TRUE(block.text().endsWith(u' '));
  }
}

TEST(QtTextInsertion, AnEndlessWordHasShortBlocksToo) {
  QTextDocument shown;
  QTextCursor cursor(&shown);
  InsertText(cursor, std::u16string(10'000, u'x'), Lines::Single);
  EXPECT_LE(LongestBlock(shown), 4096);
  EXPECT_EQ(shown.blockCount(), 3);
}

TEST(QtTextInsertion, NoSurrogatePairIsSplit) {
  QTextDocument shown;
  QTextCursor cursor(&shown);
  InsertText(cursor, u"x" + FromQt(QStringLiteral("\U0001F600").repeated(5'000)), Lines::Single);
  for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
    EXPECT_FALSE(block.text().back().isHighSurrogate());
  }
}

TEST(QtTextInsertion, NoSurrogatePairIsSplitBetweenPieces) {
  QTextDocument shown;
  const std::u16string text =
      std::u16string(4'000, u'x') + u"\U0001F600" + std::u16string(500, u'x');
  TextInsertion insertion(QTextCursor(&shown), FormattedText(text, {}, Lines::Single));
  for (const qsizetype units : {4'001, 1, 1, 1'000}) insertion.InsertNext(units);
  EXPECT_TRUE(insertion.IsDone());
  for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
    EXPECT_FALSE(block.text().isEmpty());
    EXPECT_FALSE(block.text().back().isHighSurrogate());
  }
}

TEST(QtTextInsertion, ManyShortPiecesFillTheBlocksOfASingleLine) {
  richtext::Document document;
  document.fonts = {{u"Arial", 161}};
  for (int i = 0; i < 2'000; ++i) {
    document.text += u"hello";
    document.runs.push_back({5, {.bold = i % 2 == 0}});
  }
  QTextDocument shown;
  QTextCursor cursor(&shown);
  InsertDocument(cursor, document, Lines::Single);
  EXPECT_LE(LongestBlock(shown), 1024) << "pieces are laid out slowly";
  EXPECT_GE(LongestBlock(shown), 256);
  cursor.select(QTextCursor::Document);
  EXPECT_EQ(SelectedDocument(cursor, 161, Lines::Single), document);
}

TEST(QtTextInsertion, SlowScriptsHaveShorterBlocks) {
  for (const char16_t unit : {u'\u05D0', u'\u0301', u'\u200D', u'\u4E00'}) {
    QTextDocument shown;
    QTextCursor cursor(&shown);
    InsertText(cursor, std::u16string(5'000, unit), Lines::Many);
    EXPECT_LE(LongestBlock(shown), 1024);
    EXPECT_EQ(shown.blockCount(), 5);
  }
}

TEST(QtTextInsertion, LongLinesHaveTheSameBlocksWhateverTheSizeOfTheSteps) {
  const std::u16string text = std::u16string(9'000, u'x') + u"\n" +
                              FromQt(QStringLiteral("hello, you there ").repeated(1'000)) + u"\n";
  for (const qsizetype step : {1'000, 4'095, 4'096, 5'000}) {
    QTextDocument shown;
    TextInsertion insertion(QTextCursor(&shown), FormattedText(text, {}, Lines::Many));
    while (!insertion.IsDone()) insertion.InsertNext(step);
    EXPECT_LE(LongestBlock(shown), 4096);
    EXPECT_LE(shown.blockCount(), 11) << step;
    QTextCursor cursor(&shown);
    cursor.select(QTextCursor::Document);
    EXPECT_TRUE(SelectedText(cursor, Lines::Many) == text) << step;
  }
}

TEST(QtTextInsertion, TextInsertedIntoAFullBlockStandsWhereItWasInserted) {
  QTextDocument shown;
  QTextCursor cursor(&shown);
  InsertText(cursor, std::u16string(5'000, u'x'), Lines::Single);
  for (const int position : {0, 4'000, 4'096, 4'097}) {
    cursor.setPosition(position);
    InsertText(cursor, u"yy", Lines::Single);
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, 2);
    EXPECT_EQ(SelectedText(cursor, Lines::Single), u"yy") << position;
  }
}

TEST(QtTextInsertion, InsertingPieceByPieceGivesTheSameAsAtOnce) {
  QTextDocument shown;
  QTextCursor cursor(&shown);
  const QString text = QStringLiteral("a line\nand another\n").repeated(100);
  TextInsertion insertion(cursor, FormattedText(FromQt(text), {}, Lines::Many));
  int last = insertion.Percent();
  EXPECT_EQ(last, 0);
  while (!insertion.IsDone()) {
    insertion.InsertNext(333);
    EXPECT_GT(insertion.Percent(), last);
    last = insertion.Percent();
  }
  EXPECT_EQ(last, 100);
  cursor.select(QTextCursor::Document);
  EXPECT_EQ(SelectedText(cursor, Lines::Many), FromQt(text));
}

TEST(QtTextInsertion, TextWrittenBetweenPiecesStaysBehindThem) {
  QTextDocument shown;
  QTextCursor cursor(&shown);
  TextInsertion insertion(cursor, FormattedText(u"abcdef", {}, Lines::Many));
  insertion.InsertNext(3);
  QTextCursor other(&shown);
  other.movePosition(QTextCursor::End);
  other.insertText("!");
  insertion.InsertNext(3);
  EXPECT_EQ(shown.toPlainText(), "abcdef!");
}

TEST(QtTextInsertion, WhatOthersWroteMeanwhileStaysWhenADirectionIsEnded) {
  QTextDocument document;
  QTextCursor start(&document);
  start.insertText(QStringLiteral("\u202Eopen"));
  TextInsertion insertion(start, FormattedText());
  QTextCursor other(&document);
  other.movePosition(QTextCursor::End);
  other.insertText(QStringLiteral("others"));
  insertion.EndOpenDirection();
  const QString text = document.toPlainText();
  EXPECT_TRUE(text.endsWith(QStringLiteral("others")));
  EXPECT_GT(text.size(), 11) << "the direction is ended";
}

}  // namespace
}  // namespace verlume::qt
