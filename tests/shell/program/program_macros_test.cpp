// Macros in a whole program: written, run, and edited during a conversation.
#include <gtest/gtest.h>

#include "support/program_copy.h"
#include "support/text_matchers.h"

namespace verlume {
namespace {

using fake::FakeNetwork;
using fake::ProgramCopy;

class ProgramMacrosTest : public testing::Test {
 protected:
  void Connect() {
    bob.Enter(u"/WAIT 4000");
    ann.Enter(u"/call bob 4000");
    bob.platform.dialogs.answers = {Answer::Yes};
    network.RunUntilIdle();
  }

  FakeNetwork network;
  ProgramCopy ann{network, u"Άννα"};
  ProgramCopy bob{network, u"Bob"};
};

TEST_F(ProgramMacrosTest, MacroWrittenInTheEditorIsRunFromIt) {
  Connect();
  fake::FakeMacroWindow& editor = ann.platform.macros;
  editor.window.whileModal = [&] {
    ann.platform.dialogs.typed = {u"greet"};
    editor.cmdAdd.Click();
    editor.rtbMacroText.Type(u"Good \x02morning\r, $r");
    editor.cmdSave.Click();
    editor.cmdRun.Click();
  };
  ann.Enter(u"/editmacros");
  network.RunUntilIdle();
  EXPECT_EQ(ann.Dialogue(), u"<Άννα>Good morning, Bob");
  EXPECT_EQ(bob.Dialogue(), ann.Dialogue());
  EXPECT_TRUE(ann.platform.files.files.contains(u"/macros/greet.rtf"));
  EXPECT_EQ(ann.platform.window.rtbCommands.Text(), u"");

  ann.Enter(u"/greet");
  EXPECT_EQ(ann.Dialogue(), u"<Άννα>Good morning, Bob\n<Άννα>Good morning, Bob");
}

TEST_F(ProgramMacrosTest, MacroThatHoldsACommandIsCarriedOut) {
  ann.platform.files.files[u"/macros/name.rtf"] = "/NICK Zoe";
  fake::FakeMacroWindow& editor = ann.platform.macros;
  editor.window.whileModal = [&] {
    editor.lstMacroNames.Choose(0);
    editor.cmdRun.Click();
  };
  ann.platform.window.mnuToolsEditMacros.Click();
  EXPECT_EQ(ann.program.State().Nickname, u"Zoe");
}

TEST_F(ProgramMacrosTest, MacroRunFromTheMenuLeavesWhatIsHalfTyped) {
  Connect();
  ann.platform.files.files[u"/macros/greet.rtf"] = "{\\rtf1{\\b Good morning}}";
  fake::FakeMacroWindow& editor = ann.platform.macros;
  editor.window.whileModal = [&] {
    editor.lstMacroNames.Choose(0);
    editor.cmdRun.Click();
  };
  fake::FakeRichTextBox& pane = ann.platform.window.rtbCommands;
  ann.Enter(u"/italics");
  pane.Type(u"half a line");
  pane.Select(4, 0);
  const TextStyle style = ann.program.State().Font;
  const std::u16string draft = pane.Rtf();
  ann.platform.window.mnuToolsEditMacros.Click();
  EXPECT_EQ(ann.Dialogue(), u"<Άννα>Good morning");
  EXPECT_EQ(pane.Rtf(), draft);
  EXPECT_EQ(pane.SelStart(), 4u);
  EXPECT_EQ(ann.program.State().Font, style);
  EXPECT_TRUE(pane.HasFocus());
  ann.Enter(u"!");
  network.RunUntilIdle();
  EXPECT_TRUE(bob.Dialogue().ends_with(u"<Άννα>half! a line"));
}

TEST_F(ProgramMacrosTest, CommandPaneIsSavedAsAMacro) {
  ann.platform.window.rtbCommands.Type(u"Good morning, $r");
  ann.platform.dialogs.typed = {u"greet"};
  ann.platform.window.mnuToolsSaveMacro.Click();
  EXPECT_EQ(ann.platform.window.rtbCommands.Text(), u"");
  ann.Enter(u"/greet");
  EXPECT_EQ(ann.Dialogue(), u"<Άννα>Good morning, $r");
}

TEST_F(ProgramMacrosTest, NothingToSaveLeadsToTheEditor) {
  ann.platform.dialogs.answers = {Answer::Yes};
  ann.platform.macros.window.whileModal = [&] { ann.platform.macros.cmdClose.Click(); };
  ann.platform.window.mnuToolsSaveMacro.Click();
  EXPECT_EQ(ann.platform.macros.window.timesShownModal, 1);
}

TEST_F(ProgramMacrosTest, CloseBoxOfTheMacroEditorIsRefused) {
  fake::FakeMacroWindow& editor = ann.platform.macros;
  editor.window.whileModal = [&] {
    editor.window.Close(UnloadMode::User);
    EXPECT_FALSE(editor.window.unloaded);
    editor.cmdClose.Click();
  };
  ann.platform.window.mnuToolsEditMacros.Click();
  EXPECT_EQ(ann.platform.dialogs.messages.back().title, u"Close macros editing form");
}

TEST_F(ProgramMacrosTest, ConversationGoesOnUnderTheMacroEditor) {
  Connect();
  ann.platform.files.files[u"/macros/hello.rtf"] = "{\\rtf1 Good morning}";
  fake::FakeMacroWindow& editor = ann.platform.macros;
  editor.window.whileModal = [&] {
    editor.lstMacroNames.Choose(0);
    editor.cmdEdit.Click();
    editor.rtbMacroText.Type(u"!");
    bob.Enter(u"hello");
    network.RunUntilIdle();
    EXPECT_EQ(ann.Dialogue(), u"<Bob>hello");
    bob.Enter(u"/CLOSE");
    network.RunUntilIdle();
    EXPECT_THAT(ann.Status(), EndsIn(u"Disconnected."));
    EXPECT_EQ(editor.rtbMacroText.Text(), u"Good morning!");
    EXPECT_TRUE(editor.cmdSave.enabled) << "the macro is edited on";
    editor.cmdSave.Click();
    editor.cmdRun.Click();
  };
  ann.Enter(u"/EDITMACROS");
  EXPECT_THAT(ann.Dialogue(), EndsIn(u"<Άννα>Good morning!"));
}

TEST_F(ProgramMacrosTest, CallIsTakenUnderTheMacroEditor) {
  fake::FakeMacroWindow& editor = ann.platform.macros;
  editor.window.whileModal = [&] {
    bob.Enter(u"/call ann 4000");
    ann.platform.dialogs.answers = {Answer::Yes};
    network.RunUntilIdle();
    EXPECT_TRUE(ann.program.State().IsConnected);
    EXPECT_FALSE(editor.window.unloaded);
    editor.cmdClose.Click();
  };
  ann.Enter(u"/WAIT 4000");
  ann.Enter(u"/EDITMACROS");
  EXPECT_TRUE(bob.program.State().IsConnected);
}

TEST_F(ProgramMacrosTest, EverythingOfTheMacroEditorIsBound) {
  fake::FakeMacroWindow& editor = ann.platform.macros;
  editor.window.whileModal = [&] {
    EXPECT_EQ(editor.chkBold.value, 0);
    ann.platform.files.files[u"/macros/x.rtf"] = "";
    editor.chkBold.SetValue(1);
    editor.chkItalics.SetValue(1);
    editor.chkUnderlined.SetValue(1);
    EXPECT_TRUE(ann.program.State().MacroFont.Bold && ann.program.State().MacroFont.Italic &&
                ann.program.State().MacroFont.Underline);
    ann.platform.commonDialog.colors = {Color(255)};
    editor.lblColour.onMouseDown(MouseButton::Left);
    EXPECT_EQ(ann.program.State().MacroFont.Color, 255);
    editor.rtbMacroText.SetFocus();
    EXPECT_TRUE(editor.lstMacroNames.HasFocus());
    editor.cmdAdd.SetFocus();
    EXPECT_FALSE(editor.rtbMacroText.PressKey(key_code::kOther));
    EXPECT_TRUE(editor.lstMacroNames.HasFocus());

    ann.platform.dialogs.typed = {u"one", u"two"};
    editor.cmdAdd.Click();
    editor.rtbMacroText.Type(u"x");
    editor.cmdSave.Click();
    editor.cmdEdit.Click();
    editor.cmdSaveAs.Click();
    EXPECT_TRUE(ann.platform.files.files.contains(u"/macros/two.rtf"));
    editor.cmdEdit.Click();
    ann.platform.dialogs.answers = {Answer::Yes, Answer::Yes};
    editor.cmdCancel.Click();
    editor.cmdDelete.Click();
    EXPECT_FALSE(ann.platform.files.files.contains(u"/macros/two.rtf"));
    editor.cmdClose.Click();
  };
  ann.platform.window.mnuToolsEditMacros.Click();
  EXPECT_THAT(ann.platform.dialogs.typed, testing::IsEmpty());
}

TEST_F(ProgramMacrosTest, RightClicksInTheMacroEditorShowHelp) {
  fake::FakeMacroWindow& editor = ann.platform.macros;
  const auto helps = [](auto& control) {
    control.onMouseUp(MouseButton::Left);
    control.onMouseUp(MouseButton::Right);
    control.onMouseUp(MouseButton::Other);
    return control.timesHelpShown == 2;
  };
  EXPECT_TRUE(helps(editor.chkBold) && helps(editor.chkItalics) && helps(editor.chkUnderlined));
  EXPECT_TRUE(helps(editor.lblColour) && helps(editor.lstMacroNames));
  for (auto* button : {&editor.cmdAdd, &editor.cmdEdit, &editor.cmdSave, &editor.cmdSaveAs,
                       &editor.cmdCancel, &editor.cmdDelete, &editor.cmdRun, &editor.cmdClose}) {
    EXPECT_TRUE(helps(*button));
  }
}

}  // namespace
}  // namespace verlume
