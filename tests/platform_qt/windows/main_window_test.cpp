#include "platform_qt/windows/main_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLayout>
#include <QMenuBar>
#include <QTest>
#include <set>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtMainWindowTest : public testing::Test {
 protected:
  void Show() {
    view.window.Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  }
  QWidget* Named(const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); }
  // The place of a control, as fractions of the area below the menu bar.
  QRectF RelativePlace(const QWidget* widget) {
    const QRectF area = form.centralWidget()->rect();
    const QRectF place = widget->geometry();
    return {place.x() / area.width(), place.y() / area.height(), place.width() / area.width(),
            place.height() / area.height()};
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
};

TEST_F(QtMainWindowTest, EveryControlOfTheDesignBearsItsNameOnce) {
  EXPECT_EQ(form.objectName(), "frmMain");
  for (const ControlDesign& design : kMainWindowDesign) {
    EXPECT_EQ(form.findChildren<QWidget*>(QLatin1String(design.name)).size(), 1) << design.name;
  }
  for (const MenuEntryDesign& design : kMainMenuDesign) {
    EXPECT_EQ(form.findChildren<QMenu*>(QLatin1String(design.menu)).size(), 1) << design.menu;
    EXPECT_EQ(form.findChildren<QAction*>(QLatin1String(design.entry)).size(), 1) << design.entry;
  }
  for (const char* name : {"rtbRemote", "shpStatus"}) EXPECT_NE(Named(name), nullptr) << name;
}

TEST_F(QtMainWindowTest, ANicknameStandsInLabelTitleAndBoxAsItIs) {
  Show();
  QtDialogs dialogs(&form);
  for (const char16_t* nickname : {u"<b>R&D</b> %1", u"&amp; <i>", u"%1&%2<br>", u"\\u202Eeve"}) {
    const QString text = ToQt(nickname);
    for (const char* name : {"lblLocalNickname", "lblRemoteNickname"}) {
      auto* label = form.findChild<QLabel*>(QLatin1String(name));
      (label->objectName() == "lblLocalNickname" ? view.lblLocalNickname : view.lblRemoteNickname)
          .SetCaption(nickname);
      EXPECT_EQ(label->text(), text);
      EXPECT_EQ(label->textFormat(), Qt::PlainText);
      EXPECT_EQ(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), text);
    }
    view.window.SetTitle(nickname + std::u16string(u"[*]"));
    EXPECT_TRUE(form.windowHandle()->title().startsWith(text + "[*]"));
    EXPECT_EQ(view.window.Title(), nickname + std::u16string(u"[*]"));
    const ModalDriver driver([&](QDialog& box) {
      const auto* shown = box.findChild<QLabel*>("qt_msgbox_label");
      EXPECT_EQ(shown->text(), text);
      EXPECT_EQ(shown->textFormat(), Qt::PlainText);
      EXPECT_TRUE(box.windowHandle()->title().startsWith(text));
      box.accept();
    });
    dialogs.ShowMessage(Note(nickname, nickname));
  }
}

TEST_F(QtMainWindowTest, ProgressStandsAtTheFootOfTheStatusLineWhileItIsShown) {
  Show();
  const QWidget* bar = Named("prgStatus");
  const QRect wholeLine = Named("lblStatus")->geometry();
  EXPECT_FALSE(bar->isVisible());
  view.prgStatus.SetValue(40);
  view.prgStatus.SetVisible(true);
  form.centralWidget()->layout()->activate();
  EXPECT_TRUE(bar->isVisible());
  EXPECT_TRUE(wholeLine.contains(bar->geometry()));
  EXPECT_FALSE(bar->geometry().intersects(Named("lblStatus")->geometry()));
  EXPECT_GE(Named("lblStatus")->height(), form.fontMetrics().height());
  view.prgStatus.SetVisible(false);
  form.centralWidget()->layout()->activate();
  EXPECT_EQ(Named("lblStatus")->geometry(), wholeLine);
}

TEST_F(QtMainWindowTest, MenusStandInTheirOrder) {
  QStringList names;
  for (QAction* action : form.menuBar()->actions()) names.append(action->menu()->objectName());
  EXPECT_EQ(names,
            (QStringList{"mnuFile", "mnuComm", "mnuFormat", "mnuTools", "mnuView", "mnuHelp"}));
}

TEST_F(QtMainWindowTest, MenusShowToolTips) {
  for (const QMenu* menu : form.findChildren<QMenu*>()) {
    EXPECT_TRUE(menu->toolTipsVisible()) << menu->objectName().toStdString();
  }
}

TEST_F(QtMainWindowTest, FrameOfTheLampIsReadInWords) {
  view.picShape.SetAccessibleName(u"Connection state: waiting");
  QAccessibleInterface* frame = QAccessible::queryAccessibleInterface(Named("picShape"));
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->text(QAccessible::Name), "Connection state: waiting");
}

TEST_F(QtMainWindowTest, TheTickedEntriesAreCheckable) {
  QStringList checkable;
  for (QAction* action : form.findChildren<QAction*>()) {
    if (action->isCheckable()) checkable.append(action->objectName());
  }
  checkable.sort();
  QStringList expected{
      "mnuFileLogRecord",       "mnuFormatFontBold",      "mnuFormatFontItalics",
      "mnuFormatFontUnderline", "mnuToolsCompletions",    "mnuToolsDate",
      "mnuToolsTime",           "mnuToolsAlwaysOnTop",    "mnuToolsLanguageEnglish",
      "mnuToolsLanguageGreek",  "mnuViewStatusPanel",     "mnuAttentionLines",
      "mnuToolsCheckSpelling",  "mnuAttentionText",       "mnuAttentionSound",
      "mnuAttentionCount",      "mnuPrivateWhenPossible", "mnuPrivateOnly",
      "mnuPrivateNever",        "mnuCommAskRouter"};
  expected.sort();
  EXPECT_EQ(checkable, expected);
}

TEST_F(QtMainWindowTest, LabelsOfTheViewAreTheWidgetsOfTheirNames) {
  view.lblRemoteNickname.SetCaption(u"ann");
  view.lblBytesSentCaption.SetCaption(u"Sent");
  EXPECT_EQ(form.Find<QLabel>("lblRemoteNickname")->text(), "ann");
  EXPECT_EQ(form.Find<QLabel>("lblBytesSentCaption")->text(), "Sent");
  EXPECT_EQ(form.Find<QLabel>("lblBytesSentCaption")->buddy(), Named("lblBytesSent"));
}

TEST_F(QtMainWindowTest, MenuEntryOfTheViewIsTheActionOfItsName) {
  int clicks = 0;
  view.mnuFileExit.onClick = [&] { ++clicks; };
  form.Find<QAction>("mnuFileExit")->trigger();
  EXPECT_EQ(clicks, 1);
}

TEST_F(QtMainWindowTest, FocusStartsInTheCommandPane) {
  Show();
  form.activateWindow();
  ASSERT_TRUE(WaitForFocus(form));
  EXPECT_EQ(QApplication::focusWidget(), Named("rtbCommands"));
}

TEST_F(QtMainWindowTest, DialoguePaneIsLockedAndTheRemoteBoxHidden) {
  Show();
  EXPECT_TRUE(view.rtbData.Locked());
  EXPECT_FALSE(view.rtbCommands.Locked());
  EXPECT_TRUE(Named("rtbData")->isVisible());
  EXPECT_TRUE(Named("rtbCommands")->isVisible());
  EXPECT_FALSE(Named("rtbRemote")->isVisible());
}

TEST_F(QtMainWindowTest, CommandPaneIsOfOneLine) {
  view.rtbCommands.SetText(u"one\r\ntwo");
  view.rtbData.SetText(u"one\r\ntwo");
  EXPECT_EQ(view.rtbCommands.Text(), u"one two");
  EXPECT_EQ(view.rtbData.Text(), u"one\ntwo");
}

TEST_F(QtMainWindowTest, FitsInto640By480) {
  Show();
  EXPECT_LE(form.minimumSizeHint().width(), 640);
  EXPECT_LE(form.minimumSizeHint().height(), 480);
  form.resize(640, 480);
  EXPECT_EQ(form.size(), QSize(640, 480));
}

TEST_F(QtMainWindowTest, DialoguePaneHasSixTenthsOfTheHeight) {
  Show();
  for (const QSize& size : {QSize(640, 480), QSize(900, 640), QSize(1600, 1000)}) {
    form.resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == size; }, 10000));
    form.centralWidget()->layout()->activate();
    EXPECT_GE(Named("rtbData")->height(), 0.6 * size.height()) << size.height();
  }
}

TEST_F(QtMainWindowTest, ValuesBeginWhereTheirCaptionsEnd) {
  Show();
  for (const QSize& size : {QSize(640, 480), QSize(1600, 1000)}) {
    form.resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == size; }, 10000));
    form.centralWidget()->layout()->activate();
    for (const ControlDesign& design : kMainWindowDesign) {
      if (design.kind != ControlKind::Caption) continue;
      const auto* caption = form.Find<QLabel>(design.name);
      EXPECT_TRUE(caption->alignment() & Qt::AlignRight) << design.name;
      const int gap = caption->buddy()->geometry().left() - caption->geometry().right();
      EXPECT_GT(gap, 0) << design.name;
      EXPECT_LE(gap, form.width() / 100) << design.name;
    }
  }
}

TEST_F(QtMainWindowTest, WithoutTheStatusPanelTheDialogueHasItsRoom) {
  Show();
  const int before = Named("rtbData")->height();
  view.fraPanel.SetVisible(false);
  form.centralWidget()->layout()->activate();
  EXPECT_GT(Named("rtbData")->height(), before + 3 * form.fontMetrics().height());
  EXPECT_FALSE(view.fraPanel.Visible());
  for (const char* name : {"lblLocalIP", "lblChatDuration", "picCopyright", "fraPanel"}) {
    EXPECT_FALSE(Named(name)->isVisible()) << name;
  }
  for (const char* name : {"lblStatus", "picShape", "lblWaiting", "cmdSend"}) {
    EXPECT_TRUE(Named(name)->isVisible()) << name;
  }
  const QRectF place = RelativePlace(Named("rtbCommands"));
  form.resize(1320, 900);
  form.centralWidget()->layout()->activate();
  EXPECT_NEAR(RelativePlace(Named("rtbCommands")).y(), place.y(), 0.003);
  view.fraPanel.SetVisible(true);
  form.resize(form.minimumSizeHint());
  EXPECT_TRUE(Named("lblLocalIP")->isVisible());
}

TEST_F(QtMainWindowTest, F10OpensTheMenus) {
  Show();
  form.activateWindow();
  ASSERT_TRUE(WaitForFocus(form));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
  ASSERT_NE(form.menuBar()->activeAction(), nullptr);
  EXPECT_EQ(form.menuBar()->activeAction()->menu()->objectName(), "mnuFile");
}

TEST_F(QtMainWindowTest, ToggleShowsWhetherItIsChecked) {
  Show();
  QWidget* box = Named("chkBold");
  const QImage off = box->grab().toImage();
  view.chkBold.SetValue(1);
  EXPECT_NE(box->grab().toImage(), off);
  QTest::mouseClick(box, Qt::LeftButton, {}, {2, box->height() - 2});
  EXPECT_EQ(view.chkBold.Value(), 0) << "all of it can be clicked";
}

TEST_F(QtMainWindowTest, SwatchIsFilledWithTheColour) {
  Show();
  view.lblColor.SetBackColor(0x0000C0);
  const QImage picture = Named("lblColor")->grab().toImage();
  EXPECT_EQ(picture.pixelColor(5, picture.height() / 2), QColor(0xC0, 0, 0));
}

TEST_F(QtMainWindowTest, ControlsNeitherOverlapNorLeaveTheWindow) {
  Show();
  for (const QSize& size :
       {QSize(640, 480), QSize(900, 640), QSize(1400, 1000), QSize(900, 640), QSize(640, 480)}) {
    form.resize(size);
    if (size.width() == 1400) view.lblLock.SetCaption(u"Private, verified: Carol");
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.size() == size; }, 10000));
    form.centralWidget()->layout()->activate();
    std::vector<const QWidget*> placed;
    for (const ControlDesign& design : kMainWindowDesign) {
      const QWidget* widget = Named(design.name);
      if (widget->isHidden()) continue;
      EXPECT_TRUE(form.centralWidget()->rect().contains(widget->geometry())) << design.name;
      for (const QWidget* other : placed) {
        EXPECT_FALSE(widget->geometry().intersects(other->geometry()))
            << design.name << " and " << other->objectName().toStdString();
      }
      placed.push_back(widget);
    }
  }
}

TEST_F(QtMainWindowTest, ControlsKeepTheirRelativePlaces) {
  Show();
  form.resize(660, 500);
  form.centralWidget()->layout()->activate();
  const QRectF before = RelativePlace(Named("lblRemotePort"));
  form.resize(1320, 900);
  form.centralWidget()->layout()->activate();
  const QRectF after = RelativePlace(Named("lblRemotePort"));
  EXPECT_NEAR(after.x(), before.x(), 0.003);
  EXPECT_NEAR(after.y(), before.y(), 0.003);
  EXPECT_NEAR(after.width(), before.width(), 0.003);
  EXPECT_NEAR(after.height(), before.height(), 0.003);
}

TEST_F(QtMainWindowTest, DialoguePaneHasTheMostRoom) {
  Show();
  const auto area = [](const QWidget* widget) { return widget->width() * widget->height(); };
  for (const ControlDesign& design : kMainWindowDesign) {
    if (QLatin1String(design.name) == QLatin1String("rtbData")) continue;
    EXPECT_GT(area(Named("rtbData")), 3 * area(Named(design.name))) << design.name;
  }
}

TEST_F(QtMainWindowTest, CopyrightLabelMadeAsTallAsItsPictureStaysSo) {
  view.lblCopyright.SetHeight(view.picCopyright.Height());
  Show();
  form.resize(1100, 870);
  form.centralWidget()->layout()->activate();
  EXPECT_EQ(Named("lblCopyright")->height(), Named("picCopyright")->height());
}

TEST_F(QtMainWindowTest, TabKeyGoesRoundTheControlsAsTheEyeDoes) {
  Show();
  form.activateWindow();
  ASSERT_TRUE(WaitForFocus(form));
  view.findBar.fraFind.SetVisible(true);
  view.cmdSend.SetFocus();
  QStringList order;
  for (int step = 0; step < 9; ++step) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    order.append(QApplication::focusWidget()->objectName());
  }
  EXPECT_EQ(order,
            (QStringList{"rtbData", "txtFind", "cmdFindPrevious", "cmdFindNext", "cmdFindClose",
                         "chkBold", "chkItalics", "chkUnderline", "rtbCommands"}));
  // Tab does nothing in the command pane; Shift+Tab leaves it.
  view.findBar.fraFind.SetVisible(false);
  QStringList back;
  for (int step = 0; step < 5; ++step) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    back.append(QApplication::focusWidget()->objectName());
  }
  EXPECT_EQ(back, (QStringList{"chkUnderline", "chkItalics", "chkBold", "rtbData", "cmdSend"}));
}

TEST_F(QtMainWindowTest, IconIsOneOfThisProgramsOwn) {
  EXPECT_FALSE(form.windowIcon().isNull());
  for (const int size : {16, 32, 48, 128, 256}) {
    EXPECT_EQ(form.windowIcon().actualSize(QSize(size, size)), QSize(size, size));
  }
}

TEST_F(QtMainWindowTest, PostLayoutComesOnceTheWindowIsShown) {
  int raised = 0;
  view.freeSizer1.onPostLayout = [&] { ++raised; };
  Show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return raised == 1; }, 10000));
}

TEST_F(QtMainWindowTest, CloseBoxAsksAsTheUser) {
  std::vector<UnloadMode> asked;
  view.window.onQueryUnload = [&](bool& cancel, UnloadMode mode) {
    asked.push_back(mode);
    cancel = true;
  };
  Show();
  form.close();
  EXPECT_EQ(asked, std::vector{UnloadMode::User});
  EXPECT_TRUE(form.isVisible());
}

}  // namespace
}  // namespace verlume::qt
