// The bar for another key, as widgets.
#include "platform_qt/windows/key_bar.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QElapsedTimer>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

constexpr const char16_t* kAnotherKey =
    u"Η Carol έχει άλλο κλειδί από εκείνο που επαληθεύσατε στις 3 Νοεμβρίου 2026. Αυτό συμβαίνει "
    u"με "
    u"έναν καινούριο υπολογιστή, αλλά και όταν κάποιος ανάμεσά σας διαβάζει όσα γράφετε. Ρωτήστε "
    u"την πριν συνεχίσετε.";

class QtKeyBarTest : public testing::Test {
 protected:
  QtKeyBarTest() {
    bar.cmdKeyGoOn.SetCaption(u"Go on with this key");
    bar.cmdKeyHangUp.SetCaption(u"Hang up");
    bar.cmdKeyGoOn.onClick = [this] { ++timesGoneOn; };
    bar.cmdKeyHangUp.onClick = [this] { ++timesHungUp; };
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetFocus();
    bar.lblKey.SetCaption(kAnotherKey);
    bar.fraKey.SetAccessibleName(kAnotherKey);
  }
  QWidget* Named(const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); }
  void Show() {
    bar.fraKey.SetVisible(true);
    ASSERT_TRUE(frame->isVisible()) << "at once";
    QApplication::processEvents();
    ASSERT_TRUE(frame->isVisible());
  }
  // Longer than the rest that the answers want.
  static void Rest() {
    QElapsedTimer rest;
    rest.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return rest.hasExpired(1050); }, 10000));
  }
  void Type(const QString& text) {
    for (const QChar c : text) {
      QTest::sendKeyEvent(QTest::Click, form.windowHandle(), Qt::Key(c.toUpper().unicode()), c, {});
    }
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(form.windowHandle(), key, held);
  }
  bool HasAnswered() const { return timesGoneOn + timesHungUp > 0; }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  KeyBar& bar = view.keyBar;
  QWidget* frame = Named("fraKey");
  int timesGoneOn = 0;
  int timesHungUp = 0;
};

TEST_F(QtKeyBarTest, StandsAboveTheCommandPaneAndTakesNoFocus) {
  const QRect commands = Named("rtbCommands")->geometry();
  EXPECT_FALSE(frame->isVisible());
  Show();
  EXPECT_EQ(frame->geometry().bottom() + 1, commands.top());
  EXPECT_EQ(frame->geometry().left(), commands.left());
  EXPECT_EQ(Named("rtbCommands")->geometry(), commands);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtKeyBarTest, ShowsAllOfItsTextAtEverySize) {
  for (const QSize& size : {QSize(640, 480), QSize(900, 640), QSize(1400, 1000)}) {
    form.resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == size; }, 10000));
    Show();
    const auto* text = form.Find<QLabel>("lblKey");
    EXPECT_GE(text->height(), text->heightForWidth(text->width())) << size.width();
    for (const char* name : {"lblKey", "cmdKeyGoOn", "cmdKeyHangUp"}) {
      EXPECT_TRUE(frame->rect().contains(Named(name)->geometry())) << name;
    }
    EXPECT_TRUE(form.centralWidget()->rect().contains(frame->geometry()));
  }
}

TEST_F(QtKeyBarTest, MakesWayForAPaneThatGrows) {
  Show();
  view.rtbCommands.SetText(std::u16string(400, u'w'));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return frame->geometry().bottom() + 1 == Named("rtbCommands")->geometry().top(); },
      10000));
}

TEST_F(QtKeyBarTest, HangUpIsTheDefault) {
  EXPECT_TRUE(form.Find<QPushButton>("cmdKeyHangUp")->isDefault());
  EXPECT_FALSE(form.Find<QPushButton>("cmdKeyGoOn")->isDefault());
}

TEST_F(QtKeyBarTest, TypingGoesOnInThePaneAndAnswersNothing) {
  Show();
  Rest();
  Type(QStringLiteral("hang up go on"));
  Press(Qt::Key_Return);
  Press(Qt::Key_Escape);
  Press(Qt::Key_Space);
  EXPECT_FALSE(HasAnswered());
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
  EXPECT_TRUE(view.rtbCommands.Text().starts_with(u"hang up go on"));
}

TEST_F(QtKeyBarTest, TheNearestStopOfShiftTabIsHangUp) {
  Show();
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(form.focusWidget(), Named("cmdKeyHangUp"));
  EXPECT_TRUE(bar.fraKey.HasFocus());
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(form.focusWidget(), Named("cmdKeyGoOn"));
}

TEST_F(QtKeyBarTest, EnterAndTheSpaceBarOnAButtonPressItAfterARest) {
  Show();
  Named("cmdKeyHangUp")->setFocus();
  Rest();
  Press(Qt::Key_Return);
  EXPECT_EQ(timesHungUp, 1);
  Named("cmdKeyGoOn")->setFocus();
  Rest();
  Press(Qt::Key_Space);
  EXPECT_EQ(timesGoneOn, 1);
  Rest();
  Press(Qt::Key_Return);
  EXPECT_EQ(timesGoneOn, 2);
  EXPECT_EQ(timesHungUp, 1);
}

TEST_F(QtKeyBarTest, KeysInARowPressNothing) {
  Show();
  Rest();
  Press(Qt::Key_X);
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_EQ(form.focusWidget(), Named("cmdKeyHangUp"));
  Press(Qt::Key_Return);
  Press(Qt::Key_Space);
  EXPECT_FALSE(HasAnswered());
}

TEST_F(QtKeyBarTest, AltAndTheLetterPressAButtonAfterARest) {
  const QKeySequence letter =
      QKeySequence::mnemonic(form.Find<QPushButton>("cmdKeyHangUp")->text());
  ASSERT_FALSE(letter.isEmpty());
  const Qt::Key key = letter[0].key();
  Press(key, Qt::AltModifier);
  EXPECT_FALSE(HasAnswered()) << "hidden";
  Show();
  Rest();
  Press(Qt::Key_X);
  Press(key, Qt::AltModifier);
  EXPECT_FALSE(HasAnswered()) << "while typing";
  Rest();
  Press(key, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return timesHungUp == 1; }, 10000));
  EXPECT_EQ(timesGoneOn, 0);
}

TEST_F(QtKeyBarTest, AClickThatWasMeantForSomethingElsePressesNothing) {
  Show();
  QTest::mouseClick(Named("cmdKeyGoOn"), Qt::LeftButton);
  EXPECT_FALSE(HasAnswered());
  Rest();
  QTest::mouseClick(Named("cmdKeyGoOn"), Qt::LeftButton);
  EXPECT_EQ(timesGoneOn, 1);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtKeyBarTest, IsAnAlertWhoseNameIsItsText) {
  const QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(frame);
  EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
  EXPECT_EQ(FromQt(alert->text(QAccessible::Name)), kAnotherKey);
}

TEST_F(QtKeyBarTest, MarkupIsText) {
  EXPECT_EQ(form.Find<QLabel>("lblKey")->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace verlume::qt
