#include "macros/macro_editor.h"

#include "macros/macro_editor_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(MacroEditorTest, SpeaksEnglish) {
  Open([this] {
    EXPECT_EQ(window.window.title, u"Macros");
    EXPECT_EQ(list.toolTip, u"Macro selection listbox");
    EXPECT_EQ(list.accessibleName, u"Macro selection listbox");
    EXPECT_EQ(text.toolTip, u"Macro editing textbox");
    EXPECT_EQ(text.accessibleName, u"Macro editing textbox");
    EXPECT_EQ(window.cmdAdd.caption, u"Add");
    EXPECT_EQ(window.cmdEdit.caption, u"Edit");
    EXPECT_EQ(window.cmdSave.caption, u"Save");
    EXPECT_EQ(window.cmdSaveAs.caption, u"Save as");
    EXPECT_EQ(window.cmdCancel.caption, u"Cancel");
    EXPECT_EQ(window.cmdDelete.caption, u"Delete");
    EXPECT_EQ(window.cmdRun.caption, u"Run");
    EXPECT_EQ(window.cmdClose.caption, u"Close");
    EXPECT_EQ(window.lblColour.toolTip, u"Font color");
    EXPECT_EQ(window.lblColour.caption, u"");
    EXPECT_EQ(window.chkBold.toolTip, u"Bold");
    EXPECT_EQ(window.chkItalics.toolTip, u"Italics");
    EXPECT_EQ(window.chkUnderlined.toolTip, u"Underline");
  });
}

TEST_F(MacroEditorTest, SpeaksGreek) {
  state.IsGreek = true;
  Open([this] {
    EXPECT_EQ(window.window.title, u"Μακροεντολές");
    EXPECT_EQ(list.toolTip, u"Πλαίσιο επιλογής μακροεντολής");
    EXPECT_EQ(text.toolTip, u"Πλαίσιο επεξεργασίας μακροεντολής");
    EXPECT_EQ(window.cmdAdd.caption, u"Προσθήκη");
    EXPECT_EQ(window.cmdEdit.caption, u"Επεξεργασία");
    EXPECT_EQ(window.cmdSave.caption, u"Αποθήκευση");
    EXPECT_EQ(window.cmdSaveAs.caption, u"Αποθήκευση ως");
    EXPECT_EQ(window.cmdCancel.caption, u"Άκυρο");
    EXPECT_EQ(window.cmdDelete.caption, u"Διαγραφή");
    EXPECT_EQ(window.cmdRun.caption, u"Εκτέλεση");
    EXPECT_EQ(window.cmdClose.caption, u"Κλείσιμο");
    EXPECT_EQ(window.lblColour.toolTip, u"Χρώμα γραμματοσειράς");
    EXPECT_EQ(window.chkBold.toolTip, u"Έντονη γραφή");
    EXPECT_EQ(window.chkItalics.toolTip, u"Πλάγια γραφή");
    EXPECT_EQ(window.chkUnderlined.toolTip, u"Υπογραμμισμένη γραφή");
  });
}

TEST_F(MacroEditorTest, OpensModallyWithTheNamesAndNothingChosen) {
  Open([this] {
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain"));
    EXPECT_EQ(list.selected, -1);
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(list.timesFocused, 1);
    EXPECT_EQ(pane.timesFocused, 0);
  });
  EXPECT_EQ(window.window.timesShownModal, 1);
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(MacroEditorTest, IsLoadedAfreshEachTime) {
  Open([this] { Edit(u"hello"); });
  fake.files.files.erase(u"/macros/bye.rtf");
  fake.files.files[u"/macros/new.rtf"] = "";
  Open([this] {
    EXPECT_THAT(list.items, ElementsAre(u"hello", u"new", u"plain"));
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(list.selected, -1);
  });
}

TEST_F(MacroEditorTest, EmptyFolderGivesAnEmptyPinnedList) {
  fake.files.files.clear();
  Open([this] {
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(list.tag, u"no");
  });
}

TEST_F(MacroEditorTest, NoToTheFolderQuestionOpensNothing) {
  fake.dialogs.answers = {Answer::No, Answer::No};
  state.MacrosFolder = u"/vanished/";
  editor.OpenMacroEditor();
  state.IsGreek = true;
  editor.OpenMacroEditor();
  EXPECT_EQ(fake.dialogs.messages[1].text, u"You cannot save and/or recall your macros.");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Edit macros");
  EXPECT_EQ(fake.dialogs.messages[3].text,
            u"Δεν μπορείτε να ανακαλέσετε ή/και να αποθηκεύσετε τις μακροεντολές σας.");
  EXPECT_EQ(fake.dialogs.messages[3].title, u"Επεξεργασία μακροεντολών");
  EXPECT_EQ(window.window.timesShownModal, 0);
  EXPECT_EQ(pane.timesFocused, 2);
}

TEST_F(MacroEditorTest, FailureToLoadIsReportedAndTheWindowCanBeClosed) {
  window.window.titleFails = FailureNumber::PermissionDenied;
  AnswerNoToErrors();
  Open([this] {
    ExpectReported(u"70", u"Verlume, 246.");
    EXPECT_EQ(StateName(), "Empty");
  });
  EXPECT_EQ(window.window.timesShownModal, 1);
}

TEST_F(MacroEditorTest, StaysClosedWhenTheProgramEndsOverTheReport) {
  window.window.titleFails = FailureNumber::PermissionDenied;
  AnswerNoToErrors();
  fake.dialogs.whileOpen = [this] { fake.application.End(); };
  editor.OpenMacroEditor();
  EXPECT_EQ(window.window.timesShownModal, 0);
}

TEST_F(MacroEditorTest, ClickShowsTheMacroReadOnly) {
  Open([this] {
    Choose(u"hello");
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(state.MacroIndex, 1);
    EXPECT_EQ(text.Text(), u"Good morning");
    Choose(u"bye");
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(text.Text(), u"See you");
  });
}

TEST_F(MacroEditorTest, FileThatIsNoRichTextIsShownAsItIs) {
  Open([this] {
    Choose(u"plain");
    EXPECT_EQ(text.Text(), u"no rich text");
  });
}

TEST_F(MacroEditorTest, FileWithItsExtensionInCapitalsIsShown) {
  fake.files.files[u"/macros/LOUD.RTF"] = "{\\rtf1 loud}";
  Open([this] {
    Choose(u"LOUD");
    EXPECT_EQ(text.Text(), u"loud");
  });
}

TEST_F(MacroEditorTest, MacroThatVanishedIsReportedAndLeavesTheList) {
  Open([this] {
    Choose(u"hello");
    fake.files.files.erase(u"/macros/bye.rtf");
    AnswerNoToErrors();
    Choose(u"bye");
    ExpectReported(u"53", u"Verlume, 249.");
    EXPECT_EQ(StateName(), "Empty") << "the text of hello must not stand under another name";
    EXPECT_THAT(list.items, ElementsAre(u"hello", u"plain"));
    EXPECT_EQ(list.selected, -1);
    Choose(u"hello");
    EXPECT_EQ(StateName(), "Showing");
  });
}

TEST_F(MacroEditorTest, MacroThatCannotBeReadIsReportedAndStaysInTheList) {
  Open([this] {
    fake.files.readsFail = FailureNumber::PermissionDenied;
    AnswerNoToErrors();
    Choose(u"bye");
    ExpectReported(u"70", u"Verlume, 249.");
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain"));
  });
}

TEST_F(MacroEditorTest, LastMacroThatVanishedLeavesAnEmptyPinnedList) {
  fake.files.files.clear();
  fake.files.files[u"/macros/only.rtf"] = "";
  Open([this] {
    fake.files.files.clear();
    AnswerNoToErrors();
    Choose(u"only");
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(list.tag, u"no");
  });
}

TEST_F(MacroEditorTest, ListStaysOnTheMacroThatIsEdited) {
  Open([this] {
    Edit(u"hello");
    const int focused = text.timesFocused;
    Choose(u"bye");
    EXPECT_EQ(Chosen(), u"hello");
    EXPECT_EQ(text.Text(), u"Good morning");
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.timesFocused, focused + 1);
  });
}

TEST_F(MacroEditorTest, TextPassesTheFocusOnWhileMacrosAreLookedThrough) {
  Open([this] {
    Choose(u"hello");
    text.SetFocus();
    EXPECT_TRUE(list.HasFocus());
    window.cmdEdit.Click();
    list.SetFocus();
    text.SetFocus();
    EXPECT_TRUE(text.HasFocus());
  });
}

TEST_F(MacroEditorTest, TextSwallowsEveryKeyWhileMacrosAreLookedThrough) {
  Open([this] {
    Choose(u"hello");
    for (const int key : {key_code::kOther, key_code::kTab, key_code::kEscape}) {
      for (const int shift : {0, 1, 2, 4}) {
        const int focused = list.timesFocused;
        EXPECT_FALSE(text.PressKey(key, shift));
        EXPECT_EQ(list.timesFocused, focused + 1);
      }
    }
    text.Type(u"x\t\x02");
    EXPECT_EQ(text.Text(), u"Good morning");
    EXPECT_EQ(window.chkBold.value, 1) << "Ctrl+B is swallowed too";
  });
}

TEST_F(MacroEditorTest, EscapeEmptiesTheTextWhileItIsEdited) {
  Open([this] {
    Edit(u"hello");
    for (const int shift : {1, 2, 4}) EXPECT_TRUE(text.PressKey(key_code::kEscape, shift));
    EXPECT_EQ(text.Text(), u"Good morning");
    EXPECT_FALSE(text.PressKey(key_code::kEscape));
    EXPECT_EQ(text.Text(), u"");
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_TRUE(text.PressKey(key_code::kOther));
    EXPECT_TRUE(text.PressKey(key_code::kPageUp));
  });
}

TEST_F(MacroEditorTest, OnlyTheProgramClosesIt) {
  Open([this] {
    window.cmdAdd.SetFocus();
    window.window.Close(UnloadMode::User);
    EXPECT_FALSE(window.window.unloaded) << "also while nothing is edited";
    EXPECT_TRUE(list.HasFocus());
    state.IsGreek = true;
    Edit(u"hello");
    window.cmdSave.SetFocus();
    window.window.Close(UnloadMode::User);
    EXPECT_FALSE(window.window.unloaded);
    EXPECT_TRUE(text.HasFocus());
  });
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"You may close the macros editing form, ONLY by clicking on the button titled "
            u"'Close'.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Close macros editing form");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Information);
  EXPECT_EQ(fake.dialogs.messages[1].text,
            u"Μπορείτε να κλείσετε την φόρμα επεξεργασίας των μακροεντολών, ΜΟΝΟ πατώντας το "
            u"κουμπί με τίτλο «Κλείσιμο».");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Κλείσιμο φόρμας επεξεργασίας μακροεντολών");
}

TEST_F(MacroEditorTest, CloseClosesItAndRunsNothing) {
  int pressed = 0;
  pane.onKeyPress = [&](int&) { ++pressed; };
  pane.SetText(u"typed");
  Open([this] {
    Choose(u"hello");
    window.cmdClose.Click();
    EXPECT_TRUE(window.window.unloaded);
  });
  EXPECT_THAT(Titles(), IsEmpty());
  EXPECT_EQ(pressed, 0);
  EXPECT_EQ(pane.Text(), u"typed");
}

TEST_F(MacroEditorTest, RunPutsTheMacroIntoTheCommandPaneAndPressesEnter) {
  std::vector<int> pressed;
  bool wasOpen = true;
  pane.onKeyPress = [&](int& code) {
    pressed.push_back(code);
    wasOpen = !window.window.unloaded;
    EXPECT_EQ(pane.Text(), u"Good morning");
    EXPECT_TRUE(*pane.SelFormat().bold);
    EXPECT_EQ(pane.timesFocused, 0) << "the focus comes last";
    EXPECT_EQ(state.MacroToRun, u"");
  };
  Open([this] {
    Choose(u"hello");
    window.cmdRun.Click();
    EXPECT_TRUE(window.window.unloaded);
  });
  EXPECT_THAT(pressed, ElementsAre(13));
  EXPECT_FALSE(wasOpen);
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(MacroEditorTest, MacroIsRunOnce) {
  int pressed = 0;
  pane.onKeyPress = [&](int&) { ++pressed; };
  Open([this] {
    Choose(u"hello");
    window.cmdRun.Click();
  });
  Open([] {});
  EXPECT_EQ(pressed, 1);
}

TEST_F(MacroEditorTest, NothingIsRunWhenTheProgramEndsUnderIt) {
  int pressed = 0;
  pane.onKeyPress = [&](int&) { ++pressed; };
  Open([this] {
    Choose(u"hello");
    window.cmdRun.Click();
    fake.application.End();
  });
  EXPECT_EQ(pressed, 0);
  EXPECT_EQ(pane.timesFocused, 0);
}

TEST_F(MacroEditorTest, FailureOfAnyHandlerIsReported) {
  Open([this] {
    Choose(u"hello");
    const auto expectReported = [this](const std::function<void()>& act) {
      AnswerNoToErrors();
      act();
      ExpectReported(u"51", u"Verlume, 246.");
      fake.dialogs.messages.clear();
      text.focusFails = list.focusFails = text.rtfFails = text.formatReadFails = std::nullopt;
    };
    text.rtfFails = FailureNumber::InternalError;
    expectReported([this] { window.cmdRun.Click(); });
    EXPECT_FALSE(window.window.unloaded);
    list.focusFails = FailureNumber::InternalError;
    expectReported([this] { text.onGotFocus(); });
    list.focusFails = FailureNumber::InternalError;
    expectReported([this] { EXPECT_FALSE(text.PressKey(key_code::kOther)); });
    list.focusFails = FailureNumber::InternalError;
    expectReported([this] { window.window.Close(UnloadMode::User); });
    EXPECT_FALSE(window.window.unloaded);
    text.formatReadFails = FailureNumber::InternalError;
    expectReported([this] { text.onSelChange(); });
    text.focusFails = FailureNumber::InternalError;
    expectReported([this] { window.cmdEdit.Click(); });
    EXPECT_EQ(StateName(), "Editing");
  });
}

TEST_F(MacroEditorTest, FailureToHandTheMacroOverIsReported) {
  AnswerNoToErrors();
  Open([this] {
    Choose(u"hello");
    window.cmdRun.Click();
    pane.rtfFails = FailureNumber::InternalError;
  });
  ExpectReported(u"51", u"Verlume, 246.");
  EXPECT_EQ(state.MacroToRun, u"");
  EXPECT_TRUE(pane.HasFocus());
}

}  // namespace
}  // namespace verlume
