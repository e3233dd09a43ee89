#include "platform_qt/windows/completion_list.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtCompletionListTest : public testing::Test {
 protected:
  QtCompletionListTest() {
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetFocus();
  }
  QWidget* Named(const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); }
  ListWidget* List() { return form.Find<ListWidget>("lstCompletions"); }
  // Shows rows with this text, laid out.
  void Open(int rows, std::u16string_view text = u"/COMMAND") {
    list.lstCompletions.Clear();
    for (int i = 0; i < rows; ++i) list.lstCompletions.Append(text);
    list.fraCompletions.SetVisible(true);
    QApplication::processEvents();
  }
  bool LiesBesideThePane() {
    const QRect pane = Named("rtbCommands")->geometry();
    const QRect shown = frame->geometry();
    return shown.left() == pane.left() &&
           (shown.top() == pane.bottom() + 1 || shown.bottom() + 1 == pane.top());
  }
  int RowsInView() {
    const int height = List()->visualItemRect(List()->item(0)).height();
    return List()->viewport()->height() / height;
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  CompletionList& list = view.completionList;
  QWidget* frame = Named("fraCompletions");
};

TEST_F(QtCompletionListTest, IsHiddenUntilAskedFor) {
  EXPECT_FALSE(list.fraCompletions.Visible());
  EXPECT_FALSE(frame->isVisible());
  Open(3);
  EXPECT_TRUE(List()->isVisible());
}

TEST_F(QtCompletionListTest, ASelectedRowHasTheGroundForItsTextInAnyStyle) {
  Open(3);
  QPalette colours = List()->palette();
  colours.setColor(QPalette::Highlight, Qt::red);
  colours.setColor(QPalette::HighlightedText, Qt::blue);
  for (const QString& name : QStyleFactory::keys()) {
    const std::unique_ptr<QStyle> style(QStyleFactory::create(name));
    List()->setStyle(style.get());
    List()->setPalette(colours);
    List()->setCurrentRow(1);
    const QRect row = List()->visualItemRect(List()->item(1));
    const QImage picture = List()->viewport()->grab(row).toImage();
    EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::red)) << name.toStdString();
    List()->setStyle(nullptr);
  }
}

TEST_F(QtCompletionListTest, LiesBesideTheCommandPaneAndTakesNoRoom) {
  const QRect pane = Named("rtbCommands")->geometry();
  const QRect dialogue = Named("rtbData")->geometry();
  Open(3);
  EXPECT_TRUE(LiesBesideThePane());
  EXPECT_EQ(Named("rtbCommands")->geometry(), pane);
  EXPECT_EQ(Named("rtbData")->geometry(), dialogue);
}

TEST_F(QtCompletionListTest, LiesOverTheOtherControls) {
  Open(8);
  QWidget* area = form.centralWidget();
  const QPoint shared = Named("rtbData")->geometry().intersected(frame->geometry()).center();
  ASSERT_TRUE(Named("rtbData")->geometry().contains(shared));
  EXPECT_EQ(area->childAt(shared), List()->viewport());
}

TEST_F(QtCompletionListTest, LiesWhereThereIsMoreRoom) {
  QWidget area;
  area.resize(400, 400);
  auto* pane = new QWidget(&area);
  auto* beside = new CompletionFrame(&area);
  beside->PlaceBeside(pane);
  beside->findChild<QListWidget*>()->addItems({"/WAIT", "/CALL"});
  area.show();
  for (const int top : {20, 300}) {
    pane->setGeometry(10, top, 200, 40);
    beside->show();
    const int expected = top == 20 ? 60 : 300 - beside->height();
    EXPECT_EQ(beside->y(), expected);
    EXPECT_EQ(beside->x(), 10);
  }
}

TEST_F(QtCompletionListTest, CutsWhatGoesWithAWordButNeverTheWord) {
  Open(1, u"/WORD\t[an argument]\t" + std::u16string(300, u'w'));
  EXPECT_EQ(frame->width(), Named("rtbCommands")->width());
  const QImage cut = List()->grab().toImage();
  Open(1, u"/WORD");
  const int word = List()->fontMetrics().horizontalAdvance("/WORD");
  ASSERT_GE(List()->viewport()->width(), word);
  const QImage alone = List()->grab().toImage();
  const qreal scale = alone.devicePixelRatio();
  const QRect place(0, 0, int((word + 4) * scale), int(List()->viewport()->height() * scale));
  EXPECT_EQ(cut.copy(place), alone.copy(place));
}

TEST_F(QtCompletionListTest, ReadsOutAllColumnsOfARow) {
  Open(1, u"/WAIT\t[port]\twaits for a call");
  const QAccessibleInterface* read = QAccessible::queryAccessibleInterface(List());
  ASSERT_EQ(read->childCount(), 1);
  EXPECT_EQ(read->child(0)->text(QAccessible::Name), "/WAIT, [port], waits for a call");
  list.lstCompletions.Append(u"/wave\t\tmacro");
  EXPECT_EQ(read->child(1)->text(QAccessible::Name), "/wave, macro");
}

TEST_F(QtCompletionListTest, ShowsEightRowsAtMostAndScrollsTheRest) {
  Open(3);
  EXPECT_EQ(RowsInView(), 3);
  EXPECT_FALSE(List()->verticalScrollBar()->isVisible());
  Open(20);
  EXPECT_EQ(RowsInView(), 8);
  EXPECT_TRUE(List()->verticalScrollBar()->isVisible());
  list.lstCompletions.Select(19);
  EXPECT_TRUE(List()->viewport()->rect().contains(List()->visualItemRect(List()->item(19))));
  Open(2);
  EXPECT_EQ(RowsInView(), 2);
}

TEST_F(QtCompletionListTest, IsAsWideAsItsWidestRow) {
  Open(3, u"/ME");
  const int narrow = frame->width();
  Open(3, u"/ΚΑΘΆΡΙΣΜΑΔΙΑΛΌΓΟΥ");
  EXPECT_GT(frame->width(), narrow);
  EXPECT_GE(List()->viewport()->width(), List()->sizeHintForColumn(0));
  Open(20, u"/ΚΑΘΆΡΙΣΜΑΔΙΑΛΌΓΟΥ");
  EXPECT_GE(List()->viewport()->width(), List()->sizeHintForColumn(0));
}

TEST_F(QtCompletionListTest, IsNeverWiderThanThePane) {
  Open(3, std::u16string(500, u'w'));
  EXPECT_EQ(frame->width(), Named("rtbCommands")->width());
  EXPECT_FALSE(List()->horizontalScrollBar()->isVisible());
}

TEST_F(QtCompletionListTest, FollowsTheWindowWhileItIsOpen) {
  Open(8);
  for (const QSize& size : {QSize(1100, 800), form.minimumSizeHint()}) {
    form.resize(size);
    QApplication::processEvents();
    EXPECT_TRUE(LiesBesideThePane());
    EXPECT_TRUE(form.centralWidget()->rect().contains(frame->geometry()));
  }
}

TEST_F(QtCompletionListTest, StaysInTheWindowWhereTheLettersAreLarge) {
  QFont font = List()->font();
  font.setPointSize(30);
  List()->setFont(font);
  form.resize(form.minimumSizeHint());
  Open(20);
  EXPECT_TRUE(form.centralWidget()->rect().contains(frame->geometry()));
  EXPECT_LT(RowsInView(), 8);
  EXPECT_TRUE(List()->verticalScrollBar()->isVisible());
}

TEST_F(QtCompletionListTest, LeavesTheKeysToThePane) {
  Open(3);
  QWidget* pane = Named("rtbCommands");
  EXPECT_EQ(QApplication::focusWidget(), pane);
  QTest::keyClicks(pane, "/w");
  EXPECT_EQ(view.rtbCommands.Text(), u"/w");
  const QList<QWidget*> parts = frame->findChildren<QWidget*>() << frame;
  for (const QWidget* part : parts) {
    EXPECT_FALSE(part->focusPolicy() & Qt::TabFocus) << part->objectName().toStdString();
  }
}

TEST_F(QtCompletionListTest, AClickChoosesARowAndLeavesTheFocusInThePane) {
  int chosen = -1;
  int lost = 0;
  view.rtbCommands.onLostFocus = [&] { ++lost; };
  list.lstCompletions.onClick = [&] {
    chosen = list.lstCompletions.SelectedIndex();
    list.fraCompletions.SetVisible(false);
  };
  Open(3);
  const QPoint place = List()->visualItemRect(List()->item(1)).center();
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(chosen, 1);
  EXPECT_FALSE(frame->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), Named("rtbCommands"));
  EXPECT_EQ(lost, 0);
}

TEST_F(QtCompletionListTest, AMenuTakesTheFocusFromThePane) {
  int lost = 0;
  view.rtbCommands.onLostFocus = [&] { ++lost; };
  auto* menu = form.Find<QMenu>("mnuTools");
  menu->popup(form.geometry().center());
  ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); }));
  EXPECT_EQ(lost, 1);
  menu->hide();
}

}  // namespace
}  // namespace verlume::qt
