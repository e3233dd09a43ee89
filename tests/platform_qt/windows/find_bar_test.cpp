#include "platform_qt/windows/find_bar.h"

#include <gtest/gtest.h>

#include <QLayout>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/readable_style.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtFindBarTest : public testing::Test {
 protected:
  QtFindBarTest() {
    bar.cmdFindNext.onClick = [this] { pressed.append("next"); };
    bar.cmdFindPrevious.onClick = [this] { pressed.append("previous"); };
    bar.cmdFindClose.onClick = [this] { pressed.append("close"); };
    bar.cmdFindPrevious.SetCaption(u"Προηγούμενο");
    bar.cmdFindNext.SetCaption(u"Επόμενο");
    bar.cmdFindClose.SetCaption(u"Κλείσιμο");
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
  }
  QWidget* Named(const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); }
  void Open() {
    bar.fraFind.SetVisible(true);
    bar.txtFind.SetFocus();
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  FindBar& bar = view.findBar;
  QStringList pressed;
};

TEST_F(QtFindBarTest, IsHiddenUntilAskedFor) {
  EXPECT_FALSE(bar.fraFind.Visible());
  EXPECT_FALSE(Named("fraFind")->isVisible());
  Open();
  EXPECT_TRUE(bar.fraFind.Visible());
  EXPECT_TRUE(Named("txtFind")->isVisible());
}

TEST_F(QtFindBarTest, TakesItsHeightFromTheDialoguePaneWhileItIsOpen) {
  const QRect whole = Named("rtbData")->geometry();
  const QRect commands = Named("rtbCommands")->geometry();
  Open();
  const QRect pane = Named("rtbData")->geometry();
  const QRect foot = Named("fraFind")->geometry();
  EXPECT_EQ(pane.topLeft(), whole.topLeft());
  EXPECT_EQ(pane.width(), whole.width());
  EXPECT_EQ(foot.bottomRight(), whole.bottomRight());
  EXPECT_EQ(foot.top(), pane.bottom() + 1);
  EXPECT_GE(foot.height(), Named("txtFind")->minimumSizeHint().height());
  EXPECT_EQ(Named("rtbCommands")->geometry(), commands);
  bar.fraFind.SetVisible(false);
  EXPECT_EQ(Named("rtbData")->geometry(), whole);
}

TEST_F(QtFindBarTest, NothingOfItIsCutInTheSmallestWindowInGreek) {
  Open();
  bar.lblFindResult.SetCaption(u"12 από 345, από την αρχή");
  EXPECT_LE(form.minimumSizeHint().width(), 640);
  EXPECT_LE(form.minimumSizeHint().height(), 480);
  form.resize(640, 480);
  ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == QSize(640, 480); }, 10000));
  form.centralWidget()->layout()->activate();
  Named("fraFind")->layout()->activate();
  for (const char* name : {"cmdFindPrevious", "cmdFindNext", "cmdFindClose", "lblFindResult"}) {
    EXPECT_GE(Named(name)->width(), Named(name)->sizeHint().width()) << name;
    EXPECT_GE(Named(name)->height(), Named(name)->minimumSizeHint().height()) << name;
  }
  EXPECT_GE(Named("txtFind")->width(), 120);
}

TEST_F(QtFindBarTest, EnterInTheFieldAsksForTheNextAndWithShiftForThePrevious) {
  Open();
  QTest::keyClick(Named("txtFind"), Qt::Key_Return);
  QTest::keyClick(Named("txtFind"), Qt::Key_Enter, Qt::KeypadModifier);
  QTest::keyClick(Named("txtFind"), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(pressed, (QStringList{"next", "next", "previous"}));
  EXPECT_EQ(form.focusWidget(), Named("txtFind"));
}

TEST_F(QtFindBarTest, F3WorksAnywhereInTheWindowWhileTheBarIsOpen) {
  QTest::keyClick(Named("rtbCommands"), Qt::Key_F3);
  EXPECT_EQ(pressed, QStringList());
  Open();
  for (const char* name : {"txtFind", "cmdFindNext", "rtbCommands", "rtbData"}) {
    Named(name)->setFocus();
    QTest::keyClick(Named(name), Qt::Key_F3);
    QTest::keyClick(Named(name), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(pressed, (QStringList{"next", "previous"})) << name;
    pressed.clear();
  }
}

TEST_F(QtFindBarTest, EscapeInTheBarClosesItAndElsewhereDoesNot) {
  Open();
  QTest::keyClick(Named("txtFind"), Qt::Key_Escape);
  Named("cmdFindNext")->setFocus();
  QTest::keyClick(Named("cmdFindNext"), Qt::Key_Escape);
  EXPECT_EQ(pressed, (QStringList{"close", "close"}));
  Named("rtbCommands")->setFocus();
  QTest::keyClick(Named("rtbCommands"), Qt::Key_Escape);
  EXPECT_EQ(pressed.size(), 2);
}

TEST_F(QtFindBarTest, ClickOnAButtonLeavesTheFocusInTheField) {
  Open();
  QTest::mouseClick(Named("cmdFindNext"), Qt::LeftButton);
  EXPECT_EQ(pressed, QStringList{"next"});
  EXPECT_EQ(form.focusWidget(), Named("txtFind"));
}

TEST_F(QtFindBarTest, OnlyWhatTheUserTypesIsAChange) {
  int changes = 0;
  bar.txtFind.onChange = [&] { ++changes; };
  Open();
  bar.txtFind.SetText(u"ab");
  EXPECT_EQ(changes, 0);
  bar.txtFind.SelectAll();
  QTest::keyClicks(Named("txtFind"), "c");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(bar.txtFind.Text(), u"c");
}

TEST_F(QtFindBarTest, KnowsWhetherTheFocusIsInIt) {
  EXPECT_FALSE(bar.fraFind.HasFocus());
  Open();
  EXPECT_TRUE(bar.fraFind.HasFocus());
  Named("cmdFindClose")->setFocus();
  EXPECT_TRUE(bar.fraFind.HasFocus());
  view.rtbCommands.SetFocus();
  EXPECT_FALSE(bar.fraFind.HasFocus());
}

TEST_F(QtFindBarTest, KnowsItsFocusWhileAnotherWindowIsActive) {
  Open();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(WaitForFocus(other));
  EXPECT_TRUE(bar.fraFind.HasFocus());
}

TEST_F(QtFindBarTest, MatchIsAsVisibleWithoutTheFocusAsWithIt) {
  QPalette colours = QApplication::palette();
  ReadableStyle().polish(colours);
  Named("rtbData")->setPalette(colours);
  view.rtbData.SetText(u"one cat");
  view.rtbData.Select(4, 3);
  Open();
  const QImage picture = Named("rtbData")->grab().toImage();
  const QPalette palette = Named("rtbData")->palette();
  const QColor ground = palette.color(QPalette::Active, QPalette::Highlight);
  int pixels = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) == ground) ++pixels;
    }
  }
  EXPECT_GT(pixels, 50);
}

TEST_F(QtFindBarTest, MatchIsScrolledIntoView) {
  std::u16string text;
  for (int line = 0; line < 500; ++line) text += u"a line of the dialogue\n";
  view.rtbData.SetText(text + u"cat");
  view.rtbData.Select(text.size() + 3, 0);
  Open();
  view.rtbData.Select(23 * 250, 1);
  auto* pane = form.findChild<QPlainTextEdit*>("rtbData");
  EXPECT_TRUE(pane->viewport()->rect().contains(pane->cursorRect()));
  view.rtbData.Select(text.size(), 3);
  EXPECT_TRUE(pane->viewport()->rect().contains(pane->cursorRect()));
}

TEST_F(QtFindBarTest, TabKeyGoesFromTheDialogueThroughTheBarDownTheWindow) {
  bar.fraFind.SetVisible(true);
  view.rtbData.SetFocus();
  QStringList order;
  for (int step = 0; step < 5; ++step) {
    QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    order.append(form.focusWidget()->objectName());
  }
  EXPECT_EQ(order,
            (QStringList{"txtFind", "cmdFindPrevious", "cmdFindNext", "cmdFindClose", "chkBold"}));
  QTest::keyClick(form.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(form.focusWidget()->objectName(), "cmdFindClose");
}

TEST_F(QtFindBarTest, FieldShowsItsNameWhileItIsEmpty) {
  bar.txtFind.SetAccessibleName(u"Find in dialogue");
  EXPECT_EQ(form.findChild<QLineEdit*>("txtFind")->placeholderText(), "Find in dialogue");
  EXPECT_EQ(Named("txtFind")->accessibleName(), "Find in dialogue");
}

}  // namespace
}  // namespace verlume::qt
