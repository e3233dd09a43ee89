// Typing into the main window, with the keys that the panes get.
#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class WindowTyping : public testing::Test {
 protected:
  WindowTyping() {
    view.window.Show();
    form.activateWindow();
    EXPECT_TRUE(WaitForFocus(form));
    view.rtbData.SetText(u"a line\nanother line");
    view.rtbData.SetFocus();
  }
  void Press(QWidget* where, int key, const QString& text, Qt::KeyboardModifiers held = {}) {
    QTest::sendKeyEvent(QTest::Click, where, Qt::Key(key), text, held);
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  QPlainTextEdit* dialogue = form.Find<QPlainTextEdit>("rtbData");
  QPlainTextEdit* commands = form.Find<QPlainTextEdit>("rtbCommands");
};

TEST_F(WindowTyping, InTheDialoguePaneGoesToTheCommandPane) {
  Press(dialogue, Qt::Key_H, "h");
  EXPECT_TRUE(commands->hasFocus());
  EXPECT_EQ(view.rtbCommands.Text(), u"h");
  EXPECT_EQ(view.rtbData.Text(), u"a line\nanother line");
}

TEST_F(WindowTyping, InTheDialoguePaneGoesToTheInsertionPoint) {
  view.rtbCommands.SetText(u"ad");
  view.rtbCommands.Select(1, 0);
  view.rtbData.SetFocus();
  Press(dialogue, Qt::Key_B, "b");
  Press(commands, Qt::Key_C, "c");
  EXPECT_EQ(view.rtbCommands.Text(), u"abcd");
}

TEST_F(WindowTyping, InTheDialoguePaneWorksForEveryCharacter) {
  for (const auto* text : {"λ", "Ά", " ", "/", "1", "€"}) {
    view.rtbData.SetFocus();
    Press(dialogue, Qt::Key_unknown, text);
    EXPECT_TRUE(commands->hasFocus()) << text;
  }
  EXPECT_EQ(view.rtbCommands.Text(), u"λΆ /1€");
}

TEST_F(WindowTyping, InTheDialoguePaneIsSeenByTheHandlersOfTheCommandPane) {
  std::vector<int> codes;
  view.rtbCommands.onKeyPress = [&](int& code) {
    codes.push_back(code);
    code = 0;
  };
  Press(dialogue, Qt::Key_H, "h");
  EXPECT_EQ(codes, (std::vector<int>{'h'}));
  EXPECT_EQ(view.rtbCommands.Text(), u"");
}

TEST_F(WindowTyping, KeysThatTypeNothingStayWithTheDialoguePane) {
  const std::pair<Qt::Key, const char*> keys[] = {
      {Qt::Key_PageUp, ""},     {Qt::Key_PageDown, ""}, {Qt::Key_Up, ""},
      {Qt::Key_Down, ""},       {Qt::Key_Left, ""},     {Qt::Key_Right, ""},
      {Qt::Key_Home, ""},       {Qt::Key_End, ""},      {Qt::Key_Shift, ""},
      {Qt::Key_Escape, "\x1b"}, {Qt::Key_Return, "\r"}, {Qt::Key_Backspace, "\b"},
      {Qt::Key_Delete, "\x7f"},
  };
  for (const auto& [key, text] : keys) {
    Press(dialogue, key, text);
    EXPECT_TRUE(dialogue->hasFocus()) << key;
  }
  EXPECT_EQ(view.rtbCommands.Text(), u"");
}

TEST_F(WindowTyping, KeysWithCtrlOrAltStayWithTheDialoguePane) {
  for (const Qt::KeyboardModifiers held :
       {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
        Qt::ControlModifier | Qt::AltModifier}) {
    Press(dialogue, Qt::Key_J, "j", held);
    EXPECT_TRUE(dialogue->hasFocus());
  }
  EXPECT_EQ(view.rtbCommands.Text(), u"");
}

TEST_F(WindowTyping, AnInputMethodMayComposeInTheDialoguePane) {
  QInputMethodQueryEvent enabled(Qt::ImEnabled);
  QCoreApplication::sendEvent(dialogue, &enabled);
  EXPECT_TRUE(enabled.value(Qt::ImEnabled).toBool());

  QInputMethodEvent composing("´", {});
  QCoreApplication::sendEvent(dialogue, &composing);
  EXPECT_TRUE(dialogue->hasFocus());
  EXPECT_EQ(view.rtbCommands.Text(), u"");

  QInputMethodEvent composed;
  composed.setCommitString("ά");
  QCoreApplication::sendEvent(dialogue, &composed);
  EXPECT_TRUE(commands->hasFocus());
  EXPECT_EQ(view.rtbCommands.Text(), u"ά");
}

TEST_F(WindowTyping, InputMethodsAreAcceptedAgainAfterThePaneWasLocked) {
  view.rtbData.SetLocked(false);
  view.rtbData.SetLocked(true);
  EXPECT_TRUE(dialogue->testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(WindowTyping, ALineThatIsShownAsSeveralTellsWhichTheCaretIsIn) {
  RichTextBox& pane = view.rtbCommands;
  pane.SetText(u"short");
  EXPECT_TRUE(pane.IsInFirstLine());
  EXPECT_TRUE(pane.IsInLastLine());
  std::u16string line;
  for (int i = 0; i < 60; ++i) line += u"some words ";
  pane.SetText(line);
  const auto at = [&](std::size_t caret) {
    pane.Select(caret, 0);
    return std::pair(pane.IsInFirstLine(), pane.IsInLastLine());
  };
  EXPECT_EQ(at(0), std::pair(true, false));
  EXPECT_EQ(at(line.size() / 2), std::pair(false, false));
  EXPECT_EQ(at(line.size()), std::pair(false, true));
}

}  // namespace
}  // namespace verlume::qt
