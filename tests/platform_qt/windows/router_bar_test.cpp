// The bar about the router, as widgets.
#include "platform_qt/windows/router_bar.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"
#include "shell/reach_texts.h"

namespace verlume::qt {
namespace {

constexpr const char16_t* kMayItAsk =
    u"Να ζητά το Verlume από τον δρομολογητή να προωθεί τις κλήσεις σε αυτόν τον υπολογιστή όσο "
    u"περιμένετε και συνομιλείτε; Χωρίς αυτό μπορούν συνήθως να σας καλέσουν μόνον οι υπολογιστές "
    u"αυτού του δικτύου. Το αλλάζετε όποτε θέλετε στο μενού Επικοινωνία.";

class QtRouterBarTest : public testing::Test {
 protected:
  QtRouterBarTest() {
    for (const auto& [set, text] : ReachTexts(view)) set(text.In(true));
    bar.cmdRouterYes.onClick = [this] { ++yes; };
    bar.cmdRouterNo.onClick = [this] { ++no; };
    bar.cmdRouterClose.onClick = [this] { ++closed; };
    bar.lblRouter.SetCaption(kMayItAsk);
    bar.fraRouter.SetAccessibleName(kMayItAsk);
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetFocus();
  }
  QWidget* Named(const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); }
  void Show() {
    bar.fraRouter.SetVisible(true);
    QApplication::processEvents();
    ASSERT_TRUE(frame->isVisible());
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(form.windowHandle(), key, held);
  }
  int Answers() const { return yes + no + closed; }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  RouterBar& bar = view.routerBar;
  QWidget* frame = Named("fraRouter");
  int yes = 0;
  int no = 0;
  int closed = 0;
};

TEST_F(QtRouterBarTest, LiesAboveTheCommandPaneAndMovesNothing) {
  EXPECT_FALSE(frame->isVisible());
  const QRect data = Named("rtbData")->geometry();
  const QRect commands = Named("rtbCommands")->geometry();
  Show();
  EXPECT_EQ(frame->geometry().bottom() + 1, commands.top());
  EXPECT_EQ(frame->geometry().left(), commands.left());
  EXPECT_EQ(Named("rtbData")->geometry(), data);
  EXPECT_EQ(Named("rtbCommands")->geometry(), commands);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtRouterBarTest, ShowsAllOfItsTextAtEverySize) {
  for (const QSize& size : {QSize(640, 480), QSize(900, 640), QSize(1400, 1000)}) {
    form.resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == size; }, 10000));
    Show();
    const auto* text = form.Find<QLabel>("lblRouter");
    EXPECT_GE(text->height(), text->heightForWidth(text->width())) << size.width();
    for (const char* name : {"lblRouter", "cmdRouterYes", "cmdRouterNo", "cmdRouterClose"}) {
      EXPECT_TRUE(frame->rect().contains(Named(name)->geometry())) << name;
    }
    EXPECT_TRUE(form.centralWidget()->rect().contains(frame->geometry()));
  }
}

TEST_F(QtRouterBarTest, TypingAnswersNothing) {
  Show();
  for (const Qt::Key key : {Qt::Key_Y, Qt::Key_N, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
    Press(key);
  }
  EXPECT_EQ(Answers(), 0);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtRouterBarTest, ShiftTabGoesFromTheCommandPaneThroughTheAnswers) {
  Show();
  for (const char* name : {"cmdRouterClose", "cmdRouterNo", "cmdRouterYes"}) {
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(form.focusWidget(), Named(name)) << name;
  }
  EXPECT_TRUE(bar.fraRouter.HasFocus());
  Press(Qt::Key_Return);
  EXPECT_EQ(yes, 1);
  EXPECT_EQ(Answers(), 1);
}

TEST_F(QtRouterBarTest, EscapeInItPressesClose) {
  Show();
  Named("cmdRouterYes")->setFocus();
  Press(Qt::Key_Escape);
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(Answers(), 1);
}

TEST_F(QtRouterBarTest, AClickLeavesTheFocusWhereTheUserTypes) {
  Show();
  QTest::mouseClick(Named("cmdRouterNo"), Qt::LeftButton);
  EXPECT_EQ(no, 1);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtRouterBarTest, TheBarForAnotherKeyCoversIt) {
  view.keyBar.lblKey.SetCaption(u"Carol has another key.");
  view.keyBar.fraKey.SetVisible(true);
  Show();
  QApplication::processEvents();
  const QRect key = Named("fraKey")->geometry();
  ASSERT_TRUE(frame->geometry().intersects(key));
  const QWidget* top = form.centralWidget()->childAt(
      Named("cmdKeyHangUp")->mapTo(form.centralWidget(), Named("cmdKeyHangUp")->rect().center()));
  EXPECT_EQ(top, Named("cmdKeyHangUp"));
  bar.lblRouter.SetCaption(u"Another question, which the bar is laid out for anew.");
  QApplication::processEvents();
  const QObjectList& stack = form.centralWidget()->children();
  EXPECT_LT(stack.indexOf(frame), stack.indexOf(Named("fraKey")));
}

TEST_F(QtRouterBarTest, IsAnAlertWhoseNameIsItsText) {
  const QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(frame);
  EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
  EXPECT_EQ(FromQt(alert->text(QAccessible::Name)), kMayItAsk);
}

TEST_F(QtRouterBarTest, MarkupIsText) {
  EXPECT_EQ(form.Find<QLabel>("lblRouter")->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace verlume::qt
