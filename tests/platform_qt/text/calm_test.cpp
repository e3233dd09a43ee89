// What is written at the end moves nothing of what the user reads or selects.
#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/world.h"
#include "shell/text_pair.h"

namespace verlume::qt {
namespace {

class CalmTest : public testing::Test {
 protected:
  CalmTest() {
    window.resize(400, 300);
    pane->setGeometry(0, 0, 400, 300);
    box.SetLocked(true);
    window.show();
    for (int i = 0; i < kLines; ++i) AddLine(Reader::Follows);
  }

  void AddLine(Reader reader) {
    const RichTextUpdate update(box, reader);
    box.Select(box.TextLength(), 0);
    if (box.TextLength() > 0) box.SetSelText(u"\r\n");
    box.SetSelText(u"line " + DecimalText(written++));
  }
  QString LastLine() const { return pane->document()->lastBlock().text(); }
  QTextBlock TopBlock() const { return pane->cursorForPosition({0, 0}).block(); }
  // Of a character, in the pane's viewport.
  QPoint PlaceOf(const QTextBlock& block, int character) const {
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, character);
    return pane->cursorRect(cursor).center();
  }
  void DragTo(const QPoint& place) {
    QMouseEvent move(QEvent::MouseMove, place, pane->viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(pane->viewport(), &move);
  }
  void Press(const QPoint& place) {
    QTest::mousePress(pane->viewport(), Qt::LeftButton, {}, place);
  }
  void Release(const QPoint& place) {
    QTest::mouseRelease(pane->viewport(), Qt::LeftButton, {}, place);
  }
  static constexpr int kLines = 200;

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  QPlainTextEdit* pane = box.widget();
  QScrollBar* bar = pane->verticalScrollBar();
  int written = 0;
};

TEST_F(CalmTest, WhoHasScrolledUpKeepsTheView) {
  bar->setValue(50);
  ASSERT_EQ(TopBlock().text(), "line 50");
  for (int i = 0; i < 5; ++i) AddLine(Reader::Stays);
  EXPECT_EQ(bar->value(), 50);
  EXPECT_EQ(TopBlock().text(), "line 50");
  EXPECT_EQ(LastLine(), "line 204");
  EXPECT_FALSE(box.ShowsEnd());
}

TEST_F(CalmTest, WhoFollowsSeesTheEnd) {
  bar->setValue(50);
  ASSERT_FALSE(box.ShowsEnd());
  AddLine(Reader::Follows);
  EXPECT_TRUE(box.ShowsEnd());
  EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(CalmTest, ASelectionInTheMiddleSurvives) {
  const std::size_t start = box.Text().find(u"line 100");
  box.Select(start, 17);
  const int top = bar->value();
  int selChanges = 0;
  box.onSelChange = [&] { ++selChanges; };
  for (int i = 0; i < 5; ++i) AddLine(Reader::Stays);
  EXPECT_EQ(box.SelStart(), start);
  EXPECT_EQ(box.SelLength(), 17u);
  EXPECT_EQ(box.SelText(), u"line 100\nline 101");
  EXPECT_EQ(bar->value(), top);
  EXPECT_EQ(selChanges, 0);
}

TEST_F(CalmTest, ASelectionThatReachesTheEndDoesNotGrow) {
  const std::size_t length = box.TextLength();
  box.SelectAll();
  const int top = bar->value();
  AddLine(Reader::Stays);
  EXPECT_EQ(box.SelStart(), 0u);
  EXPECT_EQ(box.SelLength(), length);
  EXPECT_EQ(bar->value(), top);
}

TEST_F(CalmTest, ASelectionThatIsBeingDraggedGoesOn) {
  bar->setValue(50);
  const QTextBlock first = TopBlock().next();
  const QPoint end = PlaceOf(first.next().next(), 4);
  Press(PlaceOf(first, 2));
  DragTo(PlaceOf(first.next(), 4));
  ASSERT_TRUE(box.IsPressed());
  ASSERT_EQ(box.SelText(), u"ne 51\nline");
  AddLine(Reader::Stays);
  EXPECT_EQ(box.SelText(), u"ne 51\nline");
  EXPECT_EQ(bar->value(), 50);
  DragTo(end);
  Release(end);
  EXPECT_EQ(box.SelText(), u"ne 51\nline 52\nline");
  EXPECT_FALSE(box.IsPressed());
}

// Nothing is selected yet when the line comes, and it comes where the button went down.
TEST_F(CalmTest, ADragFromTheEndBeginsWhereTheButtonWentDown) {
  const std::size_t end = box.TextLength();
  const QTextBlock last = pane->document()->lastBlock();
  const QPoint target = PlaceOf(last.previous(), 5);
  Press(PlaceOf(last, last.length() - 1));
  ASSERT_EQ(box.SelStart(), end);
  AddLine(Reader::Stays);
  DragTo(target);
  Release(target);
  EXPECT_EQ(box.SelText(), u"198\nline 199");
  EXPECT_EQ(box.SelStart() + box.SelLength(), end);
}

TEST_F(CalmTest, WhatIsInViewStaysWhenOlderLinesLeave) {
  std::size_t removed = 0;
  box.onLinesRemoved = [&](std::size_t, std::size_t length) { removed += length; };
  box.SetMostParagraphs(kLines + 50);
  bar->setValue(150);
  const int top = PlaceOf(TopBlock(), 0).y();
  const int height = PlaceOf(TopBlock().next(), 0).y() - top;
  ASSERT_EQ(TopBlock().text(), "line 150");
  for (int i = 0; i <= 50; ++i) AddLine(Reader::Stays);
  ASSERT_TRUE(WaitFor([&] { return removed > 0; }));
  const QTextCursor same = pane->document()->find("line 150");
  ASSERT_FALSE(same.isNull());
  EXPECT_LT(same.blockNumber(), 150) << "lines have left above it";
  EXPECT_NEAR(PlaceOf(same.block(), 0).y(), top, height);
}

TEST_F(CalmTest, ASelectionStaysWhenOlderLinesLeave) {
  std::size_t removed = 0;
  box.onLinesRemoved = [&](std::size_t, std::size_t length) { removed += length; };
  box.SetMostParagraphs(kLines + 50);
  const std::size_t start = box.Text().find(u"line 150");
  box.Select(start, 8);
  for (int i = 0; i <= 50; ++i) AddLine(Reader::Stays);
  ASSERT_TRUE(WaitFor([&] { return removed > 0; }));
  EXPECT_EQ(box.SelText(), u"line 150");
  EXPECT_EQ(box.SelStart(), start - removed);
}

}  // namespace
}  // namespace verlume::qt
