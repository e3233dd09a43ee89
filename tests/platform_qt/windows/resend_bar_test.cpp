// The bar that offers what was not delivered, as widgets.
#include "platform_qt/windows/resend_bar.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"
#include "shell/resend_bar.h"

namespace verlume::qt {
namespace {

class QtResendBarTest : public testing::Test {
 protected:
  QtResendBarTest() {
    Speak(false);
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetFocus();
  }
  void Speak(bool isGreek) {
    for (const auto& [set, text] : ResendBarTexts(bar)) set(text.In(isGreek));
    const std::u16string_view text =
        isGreek ? u"12 γραμμές δεν παραδόθηκαν προς Bob: τα λέμε το βράδυ στις οκτώ"
                : u"12 lines were not delivered to Bob: see you tonight at eight o'clock";
    bar.lblResend.SetCaption(text);
    bar.fraResend.SetAccessibleName(text);
  }
  QWidget* Named(const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  ResendBar& bar = view.resendBar;
  QWidget* frame = Named("fraResend");
};

TEST_F(QtResendBarTest, LiesAboveTheCommandPaneMovesNothingAndTakesNoFocus) {
  EXPECT_FALSE(frame->isVisible());
  const QRect data = Named("rtbData")->geometry();
  bar.fraResend.SetVisible(true);
  QApplication::processEvents();
  ASSERT_TRUE(frame->isVisible());
  EXPECT_EQ(frame->geometry().bottom() + 1, Named("rtbCommands")->geometry().top());
  EXPECT_EQ(Named("rtbData")->geometry(), data);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtResendBarTest, HasRoomForItsTextInASmallWindowInBothLanguages) {
  form.resize(640, 480);
  bar.fraResend.SetVisible(true);
  for (const bool isGreek : {false, true}) {
    Speak(isGreek);
    QApplication::processEvents();
    ASSERT_TRUE(frame->isVisible());
    EXPECT_GE(Named("lblResend")->width(), 190);
    EXPECT_GE(Named("lblResend")->height(), 2 * form.fontMetrics().height());
    EXPECT_EQ(frame->geometry().bottom() + 1, Named("rtbCommands")->geometry().top());
    for (const char* name : {"cmdResend", "cmdResendDrop", "cmdResendClose"}) {
      const auto* button = form.findChild<QPushButton*>(QLatin1String(name));
      EXPECT_GE(button->width(), button->sizeHint().width()) << name;
      EXPECT_TRUE(frame->rect().contains(button->geometry())) << name;
    }
  }
}

TEST_F(QtResendBarTest, ATextThatFitsTakesOneLine) {
  form.resize(640, 480);
  bar.fraResend.SetVisible(true);
  QApplication::processEvents();
  const int high = frame->height();
  bar.lblResend.SetCaption(u"1 line");
  QApplication::processEvents();
  EXPECT_LT(Named("lblResend")->height(), 2 * form.fontMetrics().height());
  EXPECT_LT(frame->height(), high);
  EXPECT_EQ(frame->geometry().bottom() + 1, Named("rtbCommands")->geometry().top());
}

TEST_F(QtResendBarTest, EscapeInItPressesClose) {
  int closed = 0;
  bar.cmdResendClose.onClick = [&] { ++closed; };
  bar.fraResend.SetVisible(true);
  QTest::keyClick(Named("rtbCommands"), Qt::Key_Escape);
  EXPECT_EQ(closed, 0);
  Named("cmdResendDrop")->setFocus();
  EXPECT_TRUE(bar.fraResend.HasFocus());
  QTest::keyClick(Named("cmdResendDrop"), Qt::Key_Escape);
  EXPECT_EQ(closed, 1);
}

TEST_F(QtResendBarTest, ItsButtonsAreReachedByTabInTheirOrderAndPressedByKey) {
  bar.fraResend.SetVisible(true);
  int sent = 0;
  bar.cmdResend.onClick = [&] { ++sent; };
  QStringList order;
  QWidget* const start = Named("rtbCommands");
  for (QWidget* next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain()) {
    if (next->objectName().startsWith("cmdResend")) order << next->objectName();
  }
  EXPECT_EQ(order.join(" "), "cmdResend cmdResendDrop cmdResendClose");
  Named("cmdResend")->setFocus();
  QTest::keyClick(Named("cmdResend"), Qt::Key_Space);
  EXPECT_EQ(sent, 1);
}

TEST_F(QtResendBarTest, AClickLeavesTheFocusWhereTheUserTypes) {
  bar.fraResend.SetVisible(true);
  int dropped = 0;
  bar.cmdResendDrop.onClick = [&] { ++dropped; };
  QTest::mouseClick(Named("cmdResendDrop"), Qt::LeftButton);
  EXPECT_EQ(dropped, 1);
  EXPECT_EQ(form.focusWidget(), Named("rtbCommands"));
}

TEST_F(QtResendBarTest, IsAnAlertWhoseNameIsItsText) {
  const QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(frame);
  EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
  EXPECT_TRUE(alert->text(QAccessible::Name).startsWith("12 lines were not delivered"));
}

TEST_F(QtResendBarTest, WhatAPeerOrALineSaysIsNoMarkup) {
  bar.lblResend.SetCaption(u"1 line was not delivered to <h1>Bob</h1>: <img src=x>");
  const auto* label = form.findChild<QLabel*>("lblResend");
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace verlume::qt
