// The lock at the end of the status line, as a widget.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLayout>
#include <QTest>
#include <set>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtLockLabelTest : public testing::Test {
 protected:
  QtLockLabelTest() {
    lock.onMouseDown = [this](MouseButton button) { pressed.push_back(button); };
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetFocus();
  }
  QRect PlaceOf(const char* name) {
    form.centralWidget()->layout()->activate();
    return form.findChild<QWidget*>(QLatin1String(name))->geometry();
  }
  void Resize(const QSize& size) {
    form.resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == size; }, 10000));
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  LockLabel& lock = view.lblLock;
  LockWidget* widget = form.Find<LockWidget>("lblLock");
  std::vector<MouseButton> pressed;
};

TEST_F(QtLockLabelTest, IsThereOnlyWhileItHasSomethingToSay) {
  const QRect status = PlaceOf("lblStatus");
  EXPECT_FALSE(widget->isVisible());
  lock.SetCaption(u"Private, verified: Carol");
  EXPECT_TRUE(widget->isVisible());
  EXPECT_GT(PlaceOf("lblLock").width(), PlaceOf("lblWaiting").width());
  EXPECT_LT(PlaceOf("lblStatus").right(), PlaceOf("lblWaiting").left());
  EXPECT_LT(PlaceOf("lblWaiting").right(), PlaceOf("lblLock").left());
  lock.SetCaption(u"");
  EXPECT_FALSE(widget->isVisible());
  EXPECT_EQ(PlaceOf("lblStatus"), status);
}

TEST_F(QtLockLabelTest, KeepsItsPlaceWithAndWithoutTheStatusPanel) {
  lock.SetCaption(u"Private, verified: Carol");
  const QRect before = PlaceOf("lblLock");
  view.fraPanel.SetVisible(false);
  EXPECT_EQ(PlaceOf("lblLock").left(), before.left());
  EXPECT_GT(PlaceOf("lblLock").top(), before.top());
  EXPECT_EQ(PlaceOf("lblLock").top(), PlaceOf("lblStatus").top());
  EXPECT_TRUE(widget->isVisible());
  lock.SetCaption(u"");
  lock.SetCaption(u"Private, verified: Carol");
  EXPECT_EQ(PlaceOf("lblLock").top(), PlaceOf("lblStatus").top());
  view.fraPanel.SetVisible(true);
  EXPECT_EQ(PlaceOf("lblLock"), before);
}

TEST_F(QtLockLabelTest, IsAButtonWhoseNameIsTheWholeSentence) {
  const std::u16string sentence = u"Private, verified: <b>Carol</b> (calls itself R&D)";
  lock.SetCaption(sentence);
  lock.SetToolTip(u"Click to verify");
  QAccessibleInterface* button = QAccessible::queryAccessibleInterface(widget);
  EXPECT_EQ(button->role(), QAccessible::Button);
  EXPECT_EQ(FromQt(button->text(QAccessible::Name)), sentence);
  EXPECT_EQ(button->text(QAccessible::Description), "Click to verify");
  EXPECT_EQ(widget->textFormat(), Qt::PlainText);
  ASSERT_TRUE(
      button->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(pressed, std::vector{MouseButton::Left});
}

TEST_F(QtLockLabelTest, ToolTipIsTheSentenceInForce) {
  lock.SetToolTip(u"Click to verify");
  for (const char16_t* sentence : {u"Becoming private...", u"Private, <i>verified</i>"}) {
    lock.SetCaption(sentence);
    EXPECT_TRUE(widget->toolTip().contains(ToQt(sentence).toHtmlEscaped()));
    EXPECT_TRUE(widget->toolTip().contains("Click to verify"));
    EXPECT_EQ(lock.ToolTip(), u"Click to verify");
  }
}

TEST_F(QtLockLabelTest, IsReachedByTabAndPressedByMouseAndKeys) {
  view.cmdSend.SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_NE(QApplication::focusWidget(), widget) << "hidden";
  lock.SetCaption(u"Private, verified: Carol");
  view.cmdSend.SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), widget);
  QTest::keyClick(widget, Qt::Key_Return);
  QTest::keyClick(widget, Qt::Key_Space);
  QTest::keyClick(widget, Qt::Key_A);
  EXPECT_EQ(pressed.size(), 2u);
  view.rtbCommands.SetFocus();
  QTest::mouseClick(widget, Qt::LeftButton);
  QTest::mouseClick(widget, Qt::RightButton);
  EXPECT_EQ(pressed, (std::vector{MouseButton::Left, MouseButton::Left, MouseButton::Left,
                                  MouseButton::Right}));
  EXPECT_EQ(form.focusWidget()->objectName(), "rtbCommands");
}

TEST_F(QtLockLabelTest, ShowsThatItHasTheFocus) {
  lock.SetCaption(u"Private, verified: Carol");
  const QImage before = widget->grab().toImage();
  view.cmdSend.SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_TRUE(widget->hasFocus());
  EXPECT_NE(widget->grab().toImage(), before);
}

TEST_F(QtLockLabelTest, EveryPictureIsAnother) {
  lock.SetCaption(u"Private");
  std::vector<QImage> pictures;
  for (const LockPicture picture :
       {LockPicture::Becoming, LockPicture::Closed, LockPicture::Doubtful, LockPicture::Verified,
        LockPicture::Open, LockPicture::Warning}) {
    lock.SetPicture(picture);
    EXPECT_EQ(lock.Picture(), picture);
    // Also for whoever sees no colours.
    const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_Mono);
    for (const QImage& other : pictures) EXPECT_NE(image, other);
    pictures.push_back(image);
  }
}

TEST_F(QtLockLabelTest, DrawsNothingOutsideItselfHoweverLongTheSentence) {
  Resize({640, 480});
  lock.SetCaption(std::u16string(500, u'w'));
  const QRect place = PlaceOf("lblLock");
  EXPECT_TRUE(form.centralWidget()->rect().contains(place));
  const QImage image = widget->grab().toImage();
  const QColor ground = image.pixelColor(0, 0);
  int drawn = 0;
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) drawn += image.pixelColor(x, y) != ground;
    if (x == 0) {
      EXPECT_EQ(drawn, 0) << "the picture is cut";
    }
  }
  EXPECT_GT(drawn, 300);
}

}  // namespace
}  // namespace verlume::qt
