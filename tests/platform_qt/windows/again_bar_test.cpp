// The bar above the command pane, as widgets.
#include "platform_qt/windows/again_bar.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtAgainBarTest : public testing::Test {
 protected:
  QtAgainBarTest() {
    bar.lblAgain.SetCaption(u"The connection to Bob has ended.");
    bar.fraAgain.SetAccessibleName(u"The connection to Bob has ended.");
    bar.cmdAgain.SetCaption(u"Call again");
    bar.cmdAgainClose.SetCaption(u"Close");
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetFocus();
  }
  QWidget* Named(const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  AgainBar& bar = view.againBar;
  QWidget* frame = Named("fraAgain");
};

TEST_F(QtAgainBarTest, LiesAboveTheCommandPaneAndMovesNothing) {
  EXPECT_FALSE(frame->isVisible());
  const QRect data = Named("rtbData")->geometry();
  const QRect commands = Named("rtbCommands")->geometry();
  bar.fraAgain.SetVisible(true);
  QApplication::processEvents();
  ASSERT_TRUE(frame->isVisible());
  EXPECT_EQ(frame->geometry().bottom() + 1, commands.top());
  EXPECT_EQ(frame->geometry().left(), commands.left());
  EXPECT_EQ(Named("rtbData")->geometry(), data);
  EXPECT_EQ(Named("rtbCommands")->geometry(), commands);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtAgainBarTest, FollowsTheCommandPane) {
  bar.fraAgain.SetVisible(true);
  form.resize(1000, 760);
  QApplication::processEvents();
  EXPECT_EQ(frame->geometry().bottom() + 1, Named("rtbCommands")->geometry().top());
}

TEST_F(QtAgainBarTest, EscapeInItPressesClose) {
  int closed = 0;
  bar.cmdAgainClose.onClick = [&] { ++closed; };
  bar.fraAgain.SetVisible(true);
  QTest::keyClick(Named("rtbCommands"), Qt::Key_Escape);
  EXPECT_EQ(closed, 0);
  Named("cmdAgain")->setFocus();
  EXPECT_TRUE(bar.fraAgain.HasFocus());
  QTest::keyClick(Named("cmdAgain"), Qt::Key_Escape);
  EXPECT_EQ(closed, 1);
}

TEST_F(QtAgainBarTest, ItsButtonsAreReachedByTabAndPressedByKey) {
  bar.fraAgain.SetVisible(true);
  int pressed = 0;
  bar.cmdAgain.onClick = [&] { ++pressed; };
  QWidget* const start = Named("rtbCommands");
  QWidget* next = start->nextInFocusChain();
  while (next != start && next != Named("cmdAgain")) next = next->nextInFocusChain();
  ASSERT_EQ(next, Named("cmdAgain"));
  EXPECT_NE(next->focusPolicy() & Qt::TabFocus, 0);
  next->setFocus();
  QTest::keyClick(next, Qt::Key_Space);
  EXPECT_EQ(pressed, 1);
}

TEST_F(QtAgainBarTest, IsAnAlertWhoseNameIsItsText) {
  const QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(frame);
  EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
  EXPECT_EQ(alert->text(QAccessible::Name), "The connection to Bob has ended.");
}

}  // namespace
}  // namespace verlume::qt
