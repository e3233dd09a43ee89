// The keys that choose menu entries.
#include <gtest/gtest.h>

#include <QDialog>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class MainWindowKeys : public testing::Test {
 protected:
  MainWindowKeys() {
    Note(view.mnuFileLogOpen, "open");
    Note(view.mnuFileLogSaveAs, "save");
    Note(view.mnuFileExit, "exit");
    Note(view.mnuFormatFontBold, "bold");
    Note(view.mnuFormatFontItalics, "italics");
    Note(view.mnuFormatFontUnderline, "underline");
    Note(view.mnuToolsFind, "find");
    Note(view.mnuHelpDetailed, "help");
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbCommands.SetText(u"typed");
  }
  void Note(MenuEntry& entry, const char* name) {
    entry.onClick = [this, name] { chosen.append(name); };
  }
  QWidget* Pane() { return form.findChild<QWidget*>("rtbCommands"); }
  void Press(QWidget* where, char16_t key, Qt::KeyboardModifiers held) {
    QTest::sendKeyEvent(QTest::Click, where, Qt::Key(key), QString(), held);
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  QStringList chosen;
};

TEST_F(MainWindowKeys, StayWithThePaneWhenACheckBoxIsClicked) {
  Pane()->setFocus();
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
    QTest::mouseClick(form.findChild<QWidget*>("chkBold"), button);
    EXPECT_TRUE(Pane()->hasFocus()) << button;
  }
}

TEST_F(MainWindowKeys, AreShownInTheMenus) {
  const std::pair<const char*, const char*> expected[] = {
      {"mnuFileLogOpen", "Ctrl+O"},       {"mnuFileLogSaveAs", "Ctrl+S"},
      {"mnuFileExit", "Ctrl+Q"},          {"mnuFormatFontBold", "Ctrl+B"},
      {"mnuFormatFontItalics", "Ctrl+I"}, {"mnuFormatFontUnderline", "Ctrl+U"},
      {"mnuToolsFind", "Ctrl+F"},         {"mnuHelpDetailed", "F1"},
  };
  for (const auto& [name, keys] : expected) {
    EXPECT_EQ(form.Find<QAction>(name)->shortcut(), QKeySequence(keys)) << name;
  }
}

TEST_F(MainWindowKeys, WorkWhileTheCommandPaneHasTheFocusAndEditNothing) {
  view.rtbCommands.Select(5, 0);
  for (const char16_t key : std::u16string_view(u"OSQBIUF")) {
    Press(Pane(), key, Qt::ControlModifier);
  }
  QTest::keyClick(Pane(), Qt::Key_F1);
  EXPECT_EQ(chosen,
            (QStringList{"open", "save", "exit", "bold", "italics", "underline", "find", "help"}));
  EXPECT_EQ(view.rtbCommands.Text(), u"typed");
}

TEST_F(MainWindowKeys, WorkOnTheSameKeysOfAGreekKeyboard) {
  for (const char16_t key : std::u16string_view(u"ΟΣΒΙΘΦ")) {
    Press(Pane(), key, Qt::ControlModifier);
  }
  EXPECT_EQ(chosen, (QStringList{"open", "save", "bold", "italics", "underline", "find"}));
  EXPECT_EQ(view.rtbCommands.Text(), u"typed");
}

TEST_F(MainWindowKeys, WorkWhileTheDialoguePaneHasTheFocus) {
  view.rtbData.SetFocus();
  Press(form.findChild<QWidget*>("rtbData"), u'F', Qt::ControlModifier);
  EXPECT_EQ(chosen, QStringList{"find"});
}

TEST_F(MainWindowKeys, KeysOfTheCommandPaneAreItsOwn) {
  std::vector<int> codes;
  view.rtbCommands.onKeyDown = [&](int& code, int) {
    if (code != key_code::kOther) codes.push_back(code);
    code = 0;
  };
  for (const Qt::Key key :
       {Qt::Key_Tab, Qt::Key_Escape, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_Down}) {
    QTest::keyClick(Pane(), key);
  }
  EXPECT_EQ(codes, (std::vector<int>{key_code::kTab, key_code::kEscape, key_code::kPageUp,
                                     key_code::kPageDown, key_code::kUp, key_code::kDown}));
  EXPECT_EQ(chosen, QStringList());
}

TEST_F(MainWindowKeys, EditingKeysOfTheCommandPaneAreItsOwn) {
  Press(Pane(), u'A', Qt::ControlModifier);
  EXPECT_EQ(view.rtbCommands.SelLength(), 5u);
  Press(Pane(), u'X', Qt::ControlModifier);
  EXPECT_EQ(view.rtbCommands.Text(), u"");
  Press(Pane(), u'V', Qt::ControlModifier);
  EXPECT_EQ(view.rtbCommands.Text(), u"typed");
  EXPECT_EQ(chosen, QStringList());
}

TEST_F(MainWindowKeys, AreNotTakenFromTheBoxesOfAnotherWindow) {
  QDialog other(&form);
  QtRichTextBox box(&other, files, QtRichTextBox::Lines::Single);
  std::vector<int> codes;
  box.onKeyPress = [&](int& code) {
    codes.push_back(code);
    code = 0;
  };
  other.open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &other; }, 10000));
  box.SetFocus();
  for (const char16_t key : std::u16string_view(u"BIFS")) {
    Press(box.widget(), key, Qt::ControlModifier);
  }
  EXPECT_EQ(codes, (std::vector<int>{2, 9, 6, 19}));
  EXPECT_EQ(chosen, QStringList());
}

}  // namespace
}  // namespace verlume::qt
