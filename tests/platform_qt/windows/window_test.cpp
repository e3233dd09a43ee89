#include "platform_qt/windows/window.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QWindow>

namespace verlume::qt {
namespace {

class QtWindowTest : public testing::Test {
 protected:
  QWidget form;
  QtWindow window{&form};
};

TEST_F(QtWindowTest, RefusedCloseLeavesTheFormOnTheScreen) {
  window.onQueryUnload = [](bool& cancel, UnloadMode) { cancel = true; };
  window.Show();
  EXPECT_FALSE(form.close());
  EXPECT_TRUE(form.isVisible());
}

TEST_F(QtWindowTest, UnloadTakesTheFormOffTheScreen) {
  window.Show();
  window.Unload();
  EXPECT_FALSE(form.isVisible());
}

TEST_F(QtWindowTest, UnloadWithinTheCloseQuestionTakesTheFormOffTheScreen) {
  window.onQueryUnload = [this](bool& cancel, UnloadMode mode) {
    if (mode != UnloadMode::User) return;
    window.Unload();
    cancel = true;
  };
  window.Show();
  EXPECT_TRUE(form.close());
  EXPECT_FALSE(form.isVisible());
}

TEST_F(QtWindowTest, SecondCloseDuringTheQuestionAsksNoSecondTime) {
  int asked = 0;
  window.onQueryUnload = [&](bool& cancel, UnloadMode) {
    ++asked;
    QCloseEvent again;
    QApplication::sendEvent(&form, &again);
    EXPECT_FALSE(again.isAccepted());
    cancel = true;
  };
  window.Show();
  form.close();
  EXPECT_EQ(asked, 1);
}

TEST_F(QtWindowTest, TopMostBeforeShowingIsInForceWhenShown) {
  EXPECT_TRUE(window.SetTopMost(true));
  window.Show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  EXPECT_TRUE(form.windowHandle()->flags() & Qt::WindowStaysOnTopHint);
}

TEST_F(QtWindowTest, CanBeTopMostWhereItIsAfterwards) {
  EXPECT_EQ(window.CanBeTopMost(), window.SetTopMost(true));
}

// Counts the events that occur if the window disappears and comes back.
class Blinks : public QObject {
 public:
  explicit Blinks(QWidget& form) { form.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Hide || event->type() == QEvent::Show) ++count;
    return false;
  }
};

TEST_F(QtWindowTest, TopMostChangesUnderAShownWindowThatStaysWhereItIs) {
  form.setGeometry(200, 150, 300, 200);
  window.Show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  const QRect place = form.geometry();
  const WId native = form.winId();
  Blinks blinks(form);
  EXPECT_TRUE(window.SetTopMost(true));
  EXPECT_TRUE(form.windowHandle()->flags() & Qt::WindowStaysOnTopHint);
  EXPECT_FALSE(window.SetTopMost(false));
  EXPECT_FALSE(form.windowHandle()->flags() & Qt::WindowStaysOnTopHint);
  QCoreApplication::processEvents();
  EXPECT_EQ(blinks.count, 0);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.geometry(), place);
  EXPECT_EQ(form.winId(), native);
}

TEST(QtLayoutControlTest, RaisesPostLayoutOnceFromTheEventLoop) {
  QWidget form;
  QtLayoutControl freeSizer1(&form);
  int raised = 0;
  freeSizer1.onPostLayout = [&] {
    ++raised;
    EXPECT_TRUE(form.isVisible());
  };
  QCoreApplication::processEvents();
  EXPECT_EQ(raised, 0) << "nothing is laid out before the window is shown";
  form.show();
  EXPECT_EQ(raised, 0) << "not from within Show";
  ASSERT_TRUE(QTest::qWaitFor([&] { return raised > 0; }, 10000));
  form.hide();
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  form.resize(500, 400);
  QExposeEvent again(QRegion(0, 0, 500, 400));
  QCoreApplication::sendEvent(form.windowHandle(), &again);
  QCoreApplication::processEvents();
  EXPECT_EQ(raised, 1);
}

}  // namespace
}  // namespace verlume::qt
