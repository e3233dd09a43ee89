#include "platform_qt/windows/new_lines_button.h"

#include <gtest/gtest.h>

#include <QLayout>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class NewLinesButtonTest : public testing::Test {
 protected:
  NewLinesButtonTest() { view.window.Show(); }

  void Tell(std::u16string_view caption) {
    view.newLines.cmdNewLines.SetCaption(caption);
    view.newLines.fraNewLines.SetVisible(true);
  }
  // Where the dialogue's text is, beside which the frame is placed.
  QRect TextPlace() const {
    const QWidget* text = pane->viewport();
    return {text->mapTo(form.centralWidget(), QPoint(0, 0)), text->size()};
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  QPlainTextEdit* pane = form.Find<QPlainTextEdit>("rtbData");
  QWidget* frame = form.Find<QWidget>("fraNewLines");
  QPushButton* button = form.Find<QPushButton>("cmdNewLines");
};

TEST_F(NewLinesButtonTest, IsHiddenAtFirst) {
  EXPECT_FALSE(frame->isVisible());
  EXPECT_FALSE(view.newLines.fraNewLines.Visible());
}

TEST_F(NewLinesButtonTest, StandsAtTheLowerEdgeOfTheText) {
  Tell(u"12 new lines");
  for (const QSize& size : {QSize(640, 480), QSize(1600, 1000)}) {
    form.resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == size; }, 10000));
    form.centralWidget()->layout()->activate();
    const QRect place = frame->geometry();
    EXPECT_TRUE(TextPlace().contains(place)) << size.width();
    EXPECT_LE(TextPlace().bottom() - place.bottom(), 8) << size.width();
    EXPECT_NEAR(place.center().x(), TextPlace().center().x(), 1) << size.width();
    EXPECT_EQ(form.centralWidget()->childAt(place.center()), button) << "it is on top";
  }
}

TEST_F(NewLinesButtonTest, IsAsWideAsItsCaption) {
  Tell(u"1 new line");
  const int narrow = frame->width();
  EXPECT_GE(narrow, button->fontMetrics().horizontalAdvance(button->text()));
  Tell(u"1234567890 new lines");
  EXPECT_TRUE(QTest::qWaitFor([&] { return frame->width() > narrow; }, 10000));
  EXPECT_NEAR(frame->geometry().center().x(), TextPlace().center().x(), 1);
}

TEST_F(NewLinesButtonTest, AClickLeavesTheFocusWhereItIs) {
  form.activateWindow();
  ASSERT_TRUE(WaitForFocus(form));
  int clicks = 0;
  view.newLines.cmdNewLines.onClick = [&] { ++clicks; };
  Tell(u"1 new line");
  for (const char* name : {"rtbCommands", "rtbData"}) {
    form.Find<QWidget>(name)->setFocus();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), form.Find<QWidget>(name));
  }
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace verlume::qt
