#include "platform_qt/windows/growing_pane.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class GrowingPaneTest : public testing::Test {
 protected:
  GrowingPaneTest() {
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    form.resize(form.minimumSizeHint());
    view.rtbCommands.SetFocus();
    QApplication::processEvents();
    cell = pane->geometry();
  }
  // A text that is shown in so many lines.
  void Show(int lines) {
    view.rtbCommands.SetText(u"");
    while (Lines() < lines) view.rtbCommands.SetSelText(u"some words ");
    QApplication::processEvents();
  }
  int Lines() const {
    pane->document()->documentLayout()->blockBoundingRect(pane->document()->firstBlock());
    return pane->document()->firstBlock().layout()->lineCount();
  }
  bool Scrolls() const { return pane->verticalScrollBar()->maximum() > 0; }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  QPlainTextEdit* pane = form.Find<QPlainTextEdit>("rtbCommands");
  QRect cell;
};

TEST_F(GrowingPaneTest, GrowsUpwardsWithItsText) {
  Show(3);
  const QRect three = pane->geometry();
  EXPECT_GT(three.height(), cell.height());
  EXPECT_EQ(three.bottom(), cell.bottom());
  EXPECT_EQ(three.left(), cell.left());
  EXPECT_EQ(three.width(), cell.width());
  EXPECT_FALSE(Scrolls());
  Show(4);
  EXPECT_GT(pane->height(), three.height());
  EXPECT_FALSE(Scrolls());
}

TEST_F(GrowingPaneTest, ScrollsBeyondFourLines) {
  Show(4);
  const int four = pane->height();
  Show(7);
  EXPECT_EQ(pane->height(), four);
  EXPECT_TRUE(Scrolls());
  QTest::keyClicks(pane, "typed");
  EXPECT_TRUE(pane->viewport()->rect().contains(pane->cursorRect().center()));
}

TEST_F(GrowingPaneTest, ShrinksWhenItIsEmptied) {
  Show(7);
  EXPECT_GT(pane->height(), cell.height());
  view.rtbCommands.SetText(u"");
  QApplication::processEvents();
  EXPECT_EQ(pane->geometry(), cell);
}

TEST_F(GrowingPaneTest, GrowsAsTheUserTypesAndLeavesTheOtherControls) {
  QList<QRect> others;
  const auto places = [&] {
    QList<QRect> all;
    for (const QWidget* one : form.centralWidget()->findChildren<QWidget*>()) {
      if (one->parentWidget() == form.centralWidget() && one != pane) all.append(one->geometry());
    }
    return all;
  };
  others = places();
  QTest::keyClicks(pane, QString("word ").repeated(80));
  QApplication::processEvents();
  EXPECT_GT(pane->height(), cell.height());
  EXPECT_EQ(places(), others);
  const QPoint top = pane->geometry().topLeft() + QPoint(20, 3);
  EXPECT_EQ(form.centralWidget()->childAt(top), pane->viewport());
}

TEST_F(GrowingPaneTest, KeepsItsFootInItsCellWhenTheWindowIsResized) {
  Show(4);
  form.resize(form.width() + 40, form.height() + 200);
  QApplication::processEvents();
  view.rtbCommands.SetText(u"");
  QApplication::processEvents();
  const QRect larger = pane->geometry();
  EXPECT_GT(larger.top(), cell.top());
  view.rtbCommands.SetText(std::u16string(2000, u'w'));
  QApplication::processEvents();
  EXPECT_EQ(pane->geometry().bottom(), larger.bottom());
  EXPECT_GT(pane->height(), larger.height());
}

TEST_F(GrowingPaneTest, LeavesHalfOfTheWindowWhereLettersAreLarge) {
  SelectionFormat format;
  format.fontSize = 120;
  view.rtbCommands.SetSelFormat(format);
  Show(4);
  EXPECT_EQ(pane->height(), form.centralWidget()->height() / 2);
  EXPECT_TRUE(Scrolls());
}

TEST_F(GrowingPaneTest, HoldsOneParagraphHoweverManyLinesArePasted) {
  view.rtbCommands.SetSelText(u"one\ntwo\r\nthree");
  EXPECT_EQ(view.rtbCommands.Text(), u"one two three");
}

}  // namespace
}  // namespace verlume::qt
