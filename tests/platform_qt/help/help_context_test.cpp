#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QTest>
#include <QWhatsThis>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/help/help_files.h"
#include "platform_qt/help/help_viewer.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"
#include "shell/window_behaviour.h"

namespace verlume::qt {
namespace {

// The widget in which Qt shows a What's-This text.
QWidget* ShownHelp() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->inherits("QWhatsThat")) return window;
  }
  return nullptr;
}

bool HelpIsShown() {
  return QTest::qWaitFor([] { return ShownHelp() != nullptr; }, 10000);
}

class QtHelpContextTest : public testing::Test {
 protected:
  ~QtHelpContextTest() override {
    QWhatsThis::hideText();
    QWhatsThis::leaveWhatsThisMode();
  }
  void Show() {
    frmMain.View().window.Show();
    form.activateWindow();
    ASSERT_TRUE(WaitForFocus(form));
  }
  void SetLanguage(bool isGreek) { viewer.SetHelpFile(FromQt(SmallHelpFile(isGreek)), isGreek); }
  QWidget* Named(const char* name) { return form.Find<QWidget>(name); }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  QtHelpViewer viewer{&form};
};

TEST_F(QtHelpContextTest, ControlsAreExplainedInTheLanguageInForce) {
  SetLanguage(false);
  EXPECT_EQ(Named("lblStatus")->whatsThis(), SmallBook(false).Control("lblStatus")->html);
  EXPECT_TRUE(Named("lblStatus")->whatsThis().contains("The status line"));
  SetLanguage(true);
  EXPECT_TRUE(Named("lblStatus")->whatsThis().contains("Η γραμμή κατάστασης"));
  EXPECT_EQ(Named("lblLocalPort")->whatsThis(), Named("lblLocalPortCaption")->whatsThis());
}

TEST_F(QtHelpContextTest, MenusAndTheirEntriesAreExplained) {
  SetLanguage(false);
  const QString menu = SmallBook(false).Control("mnuHelp")->html;
  EXPECT_EQ(form.Find<QMenu>("mnuHelp")->whatsThis(), menu);
  EXPECT_EQ(form.Find<QMenu>("mnuHelp")->menuAction()->whatsThis(), menu);
  EXPECT_EQ(form.Find<QAction>("mnuHelpDetailed")->whatsThis(),
            SmallBook(false).Control("mnuHelpDetailed")->html);
}

TEST_F(QtHelpContextTest, WhatTheBookDoesNotExplainHasNoText) {
  SetLanguage(false);
  EXPECT_EQ(Named("fraLocal")->whatsThis(), "");
}

TEST_F(QtHelpContextTest, AWindowMadeLaterIsExplainedWhenItIsShown) {
  SetLanguage(true);
  QWidget window;
  auto* label = new QLabel(&window);
  label->setObjectName("lblStatus");
  window.show();
  EXPECT_EQ(label->whatsThis(), SmallBook(true).Control("lblStatus")->html);
}

TEST_F(QtHelpContextTest, AMissingFileIsToldOf) {
  viewer.SetHelpFile(u"/nowhere/Verlume<b>.hlp", true);
  const QString text = Named("lblStatus")->whatsThis();
  EXPECT_TRUE(text.contains("Δεν υπάρχει βοήθεια")) << text.toStdString();
  EXPECT_TRUE(text.contains("Verlume&lt;b&gt;.hlp")) << text.toStdString();
}

TEST_F(QtHelpContextTest, ARightClickOnALabelShowsItsParagraph) {
  BindContextHelp(frmMain.View());
  SetLanguage(false);
  Show();
  QTest::mouseClick(Named("lblStatus"), Qt::LeftButton);
  EXPECT_EQ(ShownHelp(), nullptr);
  QTest::mouseClick(Named("lblStatus"), Qt::RightButton);
  EXPECT_TRUE(HelpIsShown());
}

TEST_F(QtHelpContextTest, ShiftF1ExplainsTheFocusedControl) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("book.hlp"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(
      "<html><body><div class='chapter' id='c'><div class='topic' id='t'>"
      "<div class='control' id='rtbCommands' data-controls='rtbCommands rtbData chkBold'>"
      "<h3>Pane</h3><p>Text.</p></div></div></div></body></html>");
  file.close();
  viewer.SetHelpFile(FromQt(file.fileName()), false);
  Show();
  for (const char* name : {"rtbCommands", "rtbData", "chkBold"}) {
    Named(name)->setFocus();
    QTest::keyClick(Named(name), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(HelpIsShown()) << name;
    QWhatsThis::hideText();
    ASSERT_TRUE(QTest::qWaitFor([] { return !ShownHelp(); }, 10000));
  }
}

TEST_F(QtHelpContextTest, ShiftF1ExplainsTheHighlightedMenuEntry) {
  SetLanguage(false);
  int chosen = 0;
  frmMain.View().mnuHelpDetailed.onClick = [&] { ++chosen; };
  Show();
  auto* menu = form.Find<QMenu>("mnuHelp");
  menu->popup(form.mapToGlobal(QPoint(50, 50)));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
  // Without the text of the action itself, which is used if the entry has none.
  menu->setWhatsThis(QString());
  menu->setActiveAction(form.Find<QAction>("mnuHelpDetailed"));
  QTest::keyClick(menu, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_TRUE(HelpIsShown());
  EXPECT_EQ(chosen, 0);
}

}  // namespace
}  // namespace verlume::qt
