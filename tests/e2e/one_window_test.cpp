#include <gtest/gtest.h>

#include "copy.h"

namespace verlume::e2e {
namespace {

class OneWindow : public testing::Test {
 protected:
  // Whether typed keys reach the command pane: types a command and checks that it is carried out.
  bool LineReachesTheCommandPane() {
    const QString nickname = QString("Ann%1").arg(++lines_);
    copy.TypeLine("/NICK " + nickname);
    return WaitUntil([&] { return copy.Settings().contains("Nickname=" + nickname + "\r\n"); },
                     10000);
  }
  // Moves the focus elsewhere and then chooses a menu entry by its mnemonics.
  void ChooseFromElsewhere(const QString& menu, const QString& entry) {
    copy.PressKeys("shift+Tab");
    copy.PressKeys(menu);
    copy.PressKeys(entry);
  }

  Copy copy{"Ann", false};

 private:
  int lines_ = 0;
};

TEST_F(OneWindow, FocusIsBackInTheCommandPaneAfterEveryDialog) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  const struct {
    const char* menu;
    const char* entry;
    const char* title;
  } dialogs[] = {{"alt+o", "f", "Font size definition"},
                 {"alt+o", "c", "Select Color"},
                 {"alt+o", "s", "Select Font"},
                 {"alt+t", "n", "Nickname definition"}};
  for (const auto& [menu, entry, title] : dialogs) {
    ChooseFromElsewhere(menu, entry);
    ASSERT_TRUE(copy.AnswerBox(title, "Escape")) << title;
    EXPECT_TRUE(LineReachesTheCommandPane()) << title;
  }
}

TEST_F(OneWindow, FocusIsBackInTheCommandPaneAfterAMenu) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  ChooseFromElsewhere("alt+t", "d");
  EXPECT_TRUE(LineReachesTheCommandPane());
  EXPECT_TRUE(copy.Settings().contains("DateStamp=True"));

  copy.PressKeys("alt+f");
  copy.PressKeys("Escape");
  copy.PressKeys("Escape");
  EXPECT_TRUE(LineReachesTheCommandPane()) << "left without a choice";
}

TEST_F(OneWindow, WhatIsHalfTypedStaysWhenTheNicknameIsChosenFromTheMenu) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  copy.PressKeys("ctrl+b");
  copy.Type("half a line");
  for (int letters = 0; letters < 5; ++letters) copy.PressKeys("Left");
  copy.PressKeys("alt+t");
  copy.PressKeys("n");
  ASSERT_TRUE(copy.TypeInto("Nickname definition", "Zoe"));
  copy.PressKeys("Return");
  ASSERT_TRUE(WaitUntil([&] { return copy.Settings().contains("Nickname=Zoe\r\n"); }));
  copy.TypeLine("-");
  EXPECT_TRUE(WaitUntil([&] { return copy.Dialogue() == "<Zoe>half a- line"; }))
      << copy.Dialogue().toStdString();
  EXPECT_TRUE(copy.Settings().contains("Bold=True"));
}

TEST_F(OneWindow, ARefusedCommandDoesNotJoinTheNextLine) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  copy.TypeLine("/CLOSE");
  ASSERT_TRUE(copy.AnswerBox("Command '/CLOSE'", "Return"));
  copy.TypeLine("hello");
  EXPECT_TRUE(WaitUntil([&] { return copy.Dialogue() == "<Ann1>hello"; }))
      << copy.Dialogue().toStdString();
}

TEST_F(OneWindow, FindBarTakesTheKeysUntilEscape) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  copy.PressKeys("ctrl+f");
  copy.PressKeys("x");
  copy.PressKeys("Return");
  copy.PressKeys("Escape");
  EXPECT_TRUE(LineReachesTheCommandPane());
  EXPECT_EQ(copy.Dialogue().toStdString(), "") << "the x was no line";
}

TEST_F(OneWindow, DownTakesACommandFromTheListAndEnterRunsIt) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  copy.Type("/da");
  copy.PressKeys("Down");
  copy.PressKeys("Return");
  EXPECT_TRUE(WaitUntil([&] { return copy.Settings().contains("DateStamp=True"); }));
  EXPECT_EQ(copy.Dialogue().toStdString(), "") << "nothing was sent as text";

  copy.Type("/wa");
  copy.PressKeys("Down");
  copy.PressKeys("Return");
  copy.TypeLine("/EXIT");
  EXPECT_TRUE(copy.AnswerBox("Command '/EXIT'", "Return")) << "it waits for a call";
}

TEST_F(OneWindow, MacroIsAddedInTheEditorAndRun) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  copy.TypeLine("/EDITMACROS");
  ASSERT_TRUE(WaitUntil([&] { return copy.IsActive("Macros"); }));
  copy.PressKeys("alt+F4");
  ASSERT_TRUE(copy.AnswerBox("Close macros editing form", "Return"));
  ASSERT_TRUE(WaitUntil([&] { return copy.IsActive("Macros"); })) << "it stays";

  copy.PressKeys("alt+a");
  ASSERT_TRUE(copy.TypeInto("New macro name", "greet"));
  copy.PressKeys("Return");
  ASSERT_TRUE(WaitUntil([&] { return copy.IsActive("Macros"); }));
  ASSERT_TRUE(copy.TypeInto("Macros", "Good morning"));
  copy.PressKeys("ctrl+b");
  ASSERT_TRUE(copy.TypeInto("Macros", ", all"));
  copy.PressKeys("Return");
  copy.PressKeys("alt+s");
  ASSERT_TRUE(WaitUntil([&] { return copy.Macro("greet").contains("Good morning"); }));
  EXPECT_TRUE(copy.Macro("greet").contains("\\b"));

  copy.PressKeys("alt+r");
  ASSERT_TRUE(WaitUntil([&] { return !copy.Shows("Macros"); }));
  EXPECT_TRUE(WaitUntil([&] { return copy.Dialogue() == "<Ann1>Good morning, all"; }))
      << copy.Dialogue().toStdString();
  EXPECT_TRUE(LineReachesTheCommandPane());

  copy.TypeLine("/EDITMACROS");
  ASSERT_TRUE(WaitUntil([&] { return copy.IsActive("Macros"); }));
  copy.PressKeys("Escape");
  copy.PressKeys("Down");
  copy.PressKeys("alt+r");
  ASSERT_TRUE(WaitUntil([&] { return !copy.Shows("Macros"); })) << "chosen by key, and run";
  EXPECT_TRUE(WaitUntil([&] { return copy.Dialogue().endsWith("<Ann2>Good morning, all"); }))
      << copy.Dialogue().toStdString();
}

TEST_F(OneWindow, KeysOfTheMenusWork) {
  ASSERT_TRUE(LineReachesTheCommandPane());
  copy.PressKeys("ctrl+q");
  EXPECT_TRUE(copy.WaitForEnd());
  EXPECT_EQ(copy.ExitCode(), 0);
}

}  // namespace
}  // namespace verlume::e2e
