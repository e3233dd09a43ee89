// Adding, changing and saving macros.
#include "macros/macro_editor_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using MacroEditorButtonsTest = MacroEditorTest;

TEST_F(MacroEditorButtonsTest, AddStartsAnEmptyMacroWithoutAFile) {
  Open([this] {
    Choose(u"hello");
    Add(u"new");
    EXPECT_EQ(StateName(), "New");
    EXPECT_EQ(text.Text(), u"");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain", u"new"));
    EXPECT_EQ(state.MacroIndex, 3);
    EXPECT_EQ(list.selected, 3);
    EXPECT_EQ(list.top, 3);
    EXPECT_GT(text.timesFocused, 0);
    EXPECT_EQ(Saved(u"new"), u"no file");
  });
  EXPECT_EQ(fake.dialogs.asked[0].title, u"New macro name");
  EXPECT_EQ(fake.dialogs.asked[0].prompt,
            u"Type the name of the new macro.\r\n\r\nAvoid using the characters"
            u"  \\  /  :  *  ?  \"  <  >  |  .  and the space.");
  EXPECT_EQ(fake.dialogs.asked[0].defaultText, u"");
}

TEST_F(MacroEditorButtonsTest, AddAsksInGreek) {
  state.IsGreek = true;
  Open([this] { Add(u""); });
  EXPECT_EQ(fake.dialogs.asked[0].title, u"Όνομα νέας μακροεντολής");
  EXPECT_EQ(fake.dialogs.asked[0].prompt,
            u"Πληκτρολογήστε το όνομα της νέας μακροεντολής.\r\n\r\nΑποφύγετε την χρήση των "
            u"χαρακτήρων  \\  /  :  *  ?  \"  <  >  |  .  και το κενό.");
}

TEST_F(MacroEditorButtonsTest, AddOfNoNameChangesNothing) {
  Open([this] {
    Choose(u"hello");
    Add(u"");
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(text.Text(), u"Good morning");
    EXPECT_EQ(list.Count(), 3);
  });
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(MacroEditorButtonsTest, AddOfAWrongNameAsksAgain) {
  Open([this] {
    fake.dialogs.typed = {u"a b", u"ab"};
    window.cmdAdd.Click();
    EXPECT_EQ(StateName(), "New");
    EXPECT_EQ(Chosen(), u"ab");
  });
  EXPECT_EQ(fake.dialogs.messages[0].text, u"The name you typed is incorrect.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"New macro name");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(fake.dialogs.asked[1].defaultText, u"a b");
}

TEST_F(MacroEditorButtonsTest, AddOfAnExistingNameIsRefused) {
  Open([this] {
    Choose(u"hello");
    Add(u"bye");
    state.IsGreek = true;
    Add(u"bye");
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(text.Text(), u"Good morning");
  });
  EXPECT_EQ(fake.dialogs.messages[0].text, u"A macro named 'bye' already exists.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"New macro name");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(fake.dialogs.messages[0].buttons, MessageButtons::Ok);
  EXPECT_EQ(fake.dialogs.messages[1].text, u"Υπάρχει ήδη μακροεντολή με το όνομα «bye».");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Όνομα νέας μακροεντολής");
  EXPECT_EQ(fake.dialogs.asked.size(), 2u) << "it is not asked for again";
}

TEST_F(MacroEditorButtonsTest, AddOfAListedNameWithoutAFileListsItOnce) {
  Open([this] {
    fake.files.files.erase(u"/macros/hello.rtf");
    Add(u"hello");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain"));
    EXPECT_EQ(state.MacroIndex, 1);
    EXPECT_EQ(StateName(), "New");
  });
}

TEST_F(MacroEditorButtonsTest, SavedNewMacroIsShown) {
  Open([this] {
    Add(u"new");
    text.Type(u"fresh");
    window.cmdSave.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(Saved(u"new"), u"fresh");
    EXPECT_EQ(Chosen(), u"new");
  });
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(MacroEditorButtonsTest, EditPutsTheCaretBehindTheText) {
  Open([this] {
    Choose(u"hello");
    const int focused = text.timesFocused;
    window.cmdEdit.Click();
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.SelStart(), text.TextLength());
    EXPECT_EQ(text.timesFocused, focused + 1);
    text.Type(u"!");
    EXPECT_EQ(text.Text(), u"Good morning!");
  });
  EXPECT_EQ(Saved(u"hello"), u"Good morning") << "nothing is written without Save";
}

TEST_F(MacroEditorButtonsTest, SaveReplacesTheFile) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    window.cmdSave.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(Saved(u"hello"), u"Good morning!");
    EXPECT_TRUE(richtext::ReadRtf(fake.files.files[u"/macros/hello.rtf"]).runs[0].format.bold);
  });
}

TEST_F(MacroEditorButtonsTest, EmptyTextIsNotSaved) {
  Open([this] {
    Edit(u"hello");
    text.PressKey(key_code::kEscape);
    const int focused = text.timesFocused;
    window.cmdSave.Click();
    window.cmdSaveAs.Click();
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.timesFocused, focused + 2);
    state.IsGreek = true;
    window.cmdSave.Click();
    window.cmdSaveAs.Click();
  });
  EXPECT_THAT(Titles(), ElementsAre(u"Save macro", u"Save macro as", u"Αποθήκευση μακροεντολής",
                                    u"Αποθήκευση μακροεντολής ως"));
  EXPECT_EQ(fake.dialogs.messages[0].text, u"There is nothing to save.");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Information);
  EXPECT_EQ(fake.dialogs.messages[1].text, u"There is nothing to save.");
  EXPECT_EQ(fake.dialogs.messages[2].text, u"Δεν υπάρχει τίποτε προς αποθήκευση.");
  EXPECT_EQ(Saved(u"hello"), u"Good morning");
  EXPECT_THAT(fake.dialogs.asked, IsEmpty());
}

TEST_F(MacroEditorButtonsTest, FailedSaveIsReportedAndCanBeTriedAgain) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.files.writesFail = FailureNumber::DiskFull;
    AnswerNoToErrors();
    window.cmdSave.Click();
    ExpectReported(u"61", u"Verlume, 251.");
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.Text(), u"Good morning!");
    EXPECT_EQ(Saved(u"hello"), u"Good morning");
    fake.files.writesFail.reset();
    window.cmdSave.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(Saved(u"hello"), u"Good morning!");
  });
}

TEST_F(MacroEditorButtonsTest, SaveIntoAVanishedFolderKeepsTheNewMacro) {
  Open([this] {
    Add(u"new");
    text.Type(u"fresh");
    fake.files.RemoveFolder(u"/macros");
    AnswerNoToErrors();
    window.cmdSave.Click();
    ExpectReported(u"76", u"Verlume, 251.");
    EXPECT_EQ(StateName(), "New");
    EXPECT_EQ(text.Text(), u"fresh");
  });
}

TEST_F(MacroEditorButtonsTest, AddThatFailsIsReportedAndTheMacroCanBeWritten) {
  Open([this] {
    text.formatFails = FailureNumber::InternalError;
    AnswerNoToErrors();
    Add(u"new");
    ExpectReported(u"51", u"Verlume, 247.");
    EXPECT_EQ(StateName(), "New");
    text.formatFails.reset();
    text.Type(u"fresh");
    window.cmdSave.Click();
  });
  EXPECT_EQ(Saved(u"new"), u"fresh");
}

TEST_F(MacroEditorButtonsTest, WrongNameIsToldInGreek) {
  state.IsGreek = true;
  Open([this] {
    fake.dialogs.typed = {u"a b", u""};
    window.cmdAdd.Click();
    Edit(u"hello");
    fake.dialogs.typed = {u"a b", u""};
    window.cmdSaveAs.Click();
  });
  EXPECT_THAT(Titles(), ElementsAre(u"Όνομα νέας μακροεντολής", u"Αποθήκευση μακροεντολής ως"));
  for (const Message& refusal : fake.dialogs.messages) {
    EXPECT_EQ(refusal.text, u"Το όνομα που πληκτρολογήσατε είναι λανθασμένο.");
    EXPECT_EQ(refusal.icon, MessageIcon::Stop);
  }
}

TEST_F(MacroEditorButtonsTest, AddStopsAskingWhenTheProgramEndsDuringTheBox) {
  Open([this] {
    fake.dialogs.typed = {u"a b"};
    fake.dialogs.whileOpen = [this] { fake.application.End(); };
    window.cmdAdd.Click();
  });
  EXPECT_EQ(fake.dialogs.asked.size(), 1u);
}

}  // namespace
}  // namespace verlume
