// Adding, changing, saving, giving up and deleting macros.
#include "macros/macro_editor_fixture.h"
#include "macros/macro_editor_states.h"

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

TEST_F(MacroEditorButtonsTest, SaveAsWritesACopyAndShowsIt) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.dialogs.typed = {u"other"};
    window.cmdSaveAs.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(Saved(u"other"), u"Good morning!");
    EXPECT_EQ(Saved(u"hello"), u"Good morning");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain", u"other"));
    EXPECT_EQ(state.MacroIndex, 3);
    EXPECT_EQ(list.top, 3);
  });
  EXPECT_EQ(fake.dialogs.asked[0].title, u"Save macro as");
  EXPECT_EQ(fake.dialogs.asked[0].prompt,
            u"Type the new name under which macro 'hello' will be saved.\r\n\r\nAvoid using the "
            u"characters  \\  /  :  *  ?  \"  <  >  |  .  and the space.");
  EXPECT_EQ(fake.dialogs.asked[0].defaultText, u"");
}

TEST_F(MacroEditorButtonsTest, SaveAsAsksInGreekAndStopsAtNoName) {
  state.IsGreek = true;
  Open([this] {
    Edit(u"hello");
    const int focused = text.timesFocused;
    fake.dialogs.typed = {u""};
    window.cmdSaveAs.Click();
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.timesFocused, focused + 1);
  });
  EXPECT_EQ(fake.dialogs.asked[0].title, u"Αποθήκευση μακροεντολής ως");
  EXPECT_EQ(fake.dialogs.asked[0].prompt,
            u"Πληκτρολογήστε το νέο όνομα με το οποίο θέλετε να αποθηκευθεί η μακροεντολή "
            u"«hello».\r\n\r\nΑποφύγετε την χρήση των χαρακτήρων"
            u"  \\  /  :  *  ?  \"  <  >  |  .  και το κενό.");
}

TEST_F(MacroEditorButtonsTest, SaveAsOfAWrongNameAsksAgain) {
  Open([this] {
    Edit(u"hello");
    fake.dialogs.typed = {u"a/b", u"ab"};
    window.cmdSaveAs.Click();
  });
  EXPECT_EQ(fake.dialogs.messages[0].text, u"The name you typed is incorrect.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Save macro as");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(fake.dialogs.asked[1].defaultText, u"a/b");
  EXPECT_EQ(Saved(u"ab"), u"Good morning");
}

TEST_F(MacroEditorButtonsTest, SaveAsUnderItsOwnNameAsksNothingMore) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.dialogs.typed = {u"hello"};
    window.cmdSaveAs.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(list.Count(), 3);
  });
  EXPECT_EQ(Saved(u"hello"), u"Good morning!");
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(MacroEditorButtonsTest, SaveAsReplacesAnotherMacroOnlyAfterYes) {
  Open([this] {
    Edit(u"hello");
    fake.dialogs.typed = {u"bye", u"bye"};
    fake.dialogs.answers = {Answer::No, Answer::Yes};
    window.cmdSaveAs.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(Chosen(), u"bye");
    EXPECT_EQ(list.Count(), 3);
  });
  const Message& question = fake.dialogs.messages[0];
  EXPECT_EQ(question.text,
            u"A macro named 'bye', already exists.\r\n\r\nWould you like to replace it?");
  EXPECT_EQ(question.title, u"Save macro as");
  EXPECT_EQ(question.icon, MessageIcon::Question);
  EXPECT_EQ(question.buttons, MessageButtons::YesNo);
  EXPECT_EQ(question.defaultAnswer, Answer::No);
  EXPECT_EQ(fake.dialogs.asked[1].defaultText, u"bye");
  EXPECT_EQ(Saved(u"bye"), u"Good morning");
  EXPECT_EQ(Saved(u"hello"), u"Good morning");
}

TEST_F(MacroEditorButtonsTest, ReplaceQuestionSpeaksGreek) {
  state.IsGreek = true;
  Open([this] {
    Edit(u"hello");
    fake.dialogs.typed = {u"bye"};
    fake.dialogs.answers = {Answer::Yes};
    window.cmdSaveAs.Click();
  });
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Υπάρχει ήδη μακροεντολή με το όνομα «bye».\r\n\r\nΜήπως θέλετε να την "
            u"αντικαταστήσετε;");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Αποθήκευση μακροεντολής ως");
}

TEST_F(MacroEditorButtonsTest, SaveAsInAnotherLetterCaseTakesTheNameOnDisk) {
  fake.files.ignoresCase = true;
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.dialogs.typed = {u"HELLO"};
    fake.dialogs.answers = {Answer::Yes};
    window.cmdSaveAs.Click();
    EXPECT_EQ(Chosen(), u"hello");
    EXPECT_EQ(list.Count(), 3);
  });
  EXPECT_EQ(Saved(u"hello"), u"Good morning!");
}

TEST_F(MacroEditorButtonsTest, SaveAsInAnotherLetterCaseIsANewMacroWhereCaseCounts) {
  Open([this] {
    Edit(u"hello");
    fake.dialogs.typed = {u"HELLO"};
    window.cmdSaveAs.Click();
    EXPECT_EQ(Chosen(), u"HELLO");
    EXPECT_EQ(list.Count(), 4);
  });
  EXPECT_EQ(Saved(u"HELLO"), u"Good morning");
}

TEST_F(MacroEditorButtonsTest, FailedSaveAsStaysOnTheMacroThatIsEdited) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.files.writesFail = FailureNumber::PermissionDenied;
    fake.dialogs.typed = {u"other"};
    AnswerNoToErrors();
    window.cmdSaveAs.Click();
    ExpectReported(u"70", u"Verlume, 252.");
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(Chosen(), u"hello");
    EXPECT_EQ(state.MacroIndex, 1);
    EXPECT_EQ(text.Text(), u"Good morning!");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain"));
  });
}

TEST_F(MacroEditorButtonsTest, NoToCancelGoesOnEditing) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    const int focused = text.timesFocused;
    fake.dialogs.answers = {Answer::No};
    window.cmdCancel.Click();
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.Text(), u"Good morning!");
    EXPECT_EQ(text.timesFocused, focused + 1);
  });
  const Message& question = fake.dialogs.messages[0];
  EXPECT_EQ(question.text,
            u"Are you sure you want to cancel all of the modifications you may have performed on "
            u"macro 'hello'?");
  EXPECT_EQ(question.title, u"Cancel modifications");
  EXPECT_EQ(question.icon, MessageIcon::Question);
  EXPECT_EQ(question.defaultAnswer, Answer::No);
}

TEST_F(MacroEditorButtonsTest, CancelReloadsASavedMacro) {
  state.IsGreek = true;
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.dialogs.answers = {Answer::Yes};
    window.cmdCancel.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(text.Text(), u"Good morning");
  });
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Είναι βέβαιο το ότι θέλετε να ακυρώσετε όλες τις τυχόν αλλαγές που ίσως επιφέρατε "
            u"στην μακροεντολή «hello»;");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Ακύρωση αλλαγών");
}

TEST_F(MacroEditorButtonsTest, CancelOfANewMacroTakesItFromTheList) {
  Open([this] {
    Add(u"new");
    text.Type(u"fresh");
    fake.dialogs.answers = {Answer::Yes};
    window.cmdCancel.Click();
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain"));
    EXPECT_EQ(list.selected, -1);
  });
}

TEST_F(MacroEditorButtonsTest, CancelOfTheOnlyMacroLeavesAnEmptyList) {
  fake.files.files.clear();
  Open([this] {
    Add(u"new");
    fake.dialogs.answers = {Answer::Yes};
    window.cmdCancel.Click();
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(list.tag, u"no");
  });
}

TEST_F(MacroEditorButtonsTest, CancelThatCannotReloadLosesNothing) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.files.readsFail = FailureNumber::PermissionDenied;
    fake.dialogs.answers = {Answer::Yes, Answer::No};
    window.cmdCancel.Click();
    ExpectReported(u"70", u"Verlume, 248.");
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.Text(), u"Good morning!");
  });
}

TEST_F(MacroEditorButtonsTest, DeleteTakesFileAndName) {
  Open([this] {
    Choose(u"hello");
    fake.dialogs.answers = {Answer::No};
    window.cmdDelete.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(Saved(u"hello"), u"Good morning");
    state.IsGreek = true;
    fake.dialogs.answers = {Answer::Yes};
    window.cmdDelete.Click();
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(Saved(u"hello"), u"no file");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"plain"));
  });
  EXPECT_EQ(fake.dialogs.messages[0].text, u"Do you really want to delete macro 'hello'?");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Delete macro");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Question);
  EXPECT_EQ(fake.dialogs.messages[0].defaultAnswer, Answer::No);
  EXPECT_EQ(fake.dialogs.messages[1].text,
            u"Θέλετε πράγματι να διαγράψετε την μακροεντολή «hello»;");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Διαγραφή μακροεντολής");
}

TEST_F(MacroEditorButtonsTest, DeleteOfTheLastMacroLeavesAddAndClose) {
  fake.files.files.clear();
  fake.files.files[u"/macros/only.rtf"] = "";
  Open([this] {
    Choose(u"only");
    fake.dialogs.answers = {Answer::Yes};
    window.cmdDelete.Click();
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(list.tag, u"no");
    EXPECT_EQ(list.Count(), 0);
  });
}

TEST_F(MacroEditorButtonsTest, FailedDeleteIsReportedAndTheMacroStays) {
  Open([this] {
    Choose(u"hello");
    fake.files.writesFail = FailureNumber::PermissionDenied;
    fake.dialogs.answers = {Answer::Yes, Answer::No};
    window.cmdDelete.Click();
    ExpectReported(u"70", u"Verlume, 250.");
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(list.Count(), 3);
  });
}

TEST_F(MacroEditorButtonsTest, DeleteOfAMacroThatVanishedIsReportedAndTakesItsName) {
  Open([this] {
    Choose(u"hello");
    fake.files.files.erase(u"/macros/hello.rtf");
    fake.dialogs.answers = {Answer::Yes, Answer::No};
    window.cmdDelete.Click();
    ExpectReported(u"53", u"Verlume, 250.");
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"plain"));
    EXPECT_EQ(list.selected, -1);
  });
}

TEST_F(MacroEditorButtonsTest, NoToTheDeletionOfAVanishedMacroKeepsItShown) {
  Open([this] {
    Choose(u"hello");
    fake.files.files.erase(u"/macros/hello.rtf");
    fake.dialogs.answers = {Answer::No};
    window.cmdDelete.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(list.Count(), 3);
  });
}

TEST_F(MacroEditorButtonsTest, KeyboardGoesToTheListOnceNothingIsEdited) {
  Open([this] {
    Edit(u"hello");
    EXPECT_TRUE(text.HasFocus());
    window.cmdSave.Click();
    EXPECT_TRUE(list.HasFocus()) << "Save";
    window.cmdEdit.Click();
    fake.dialogs.typed = {u"copy"};
    window.cmdSaveAs.Click();
    EXPECT_TRUE(list.HasFocus()) << "Save as";
    window.cmdEdit.Click();
    fake.dialogs.answers = {Answer::Yes, Answer::No, Answer::Yes};
    window.cmdCancel.Click();
    EXPECT_TRUE(list.HasFocus()) << "Cancel";
    window.cmdDelete.SetFocus();
    window.cmdDelete.Click();
    EXPECT_TRUE(list.HasFocus()) << "no to Delete";
    window.cmdDelete.SetFocus();
    window.cmdDelete.Click();
    EXPECT_TRUE(list.HasFocus()) << "Delete";
  });
}

TEST_F(MacroEditorButtonsTest, KeyboardGoesBackToATextThatIsStillEdited) {
  Open([this] {
    Edit(u"hello");
    window.cmdCancel.SetFocus();
    fake.dialogs.answers = {Answer::No};
    window.cmdCancel.Click();
    EXPECT_TRUE(text.HasFocus()) << "no to Cancel";
    window.cmdSaveAs.SetFocus();
    fake.dialogs.typed = {u""};
    window.cmdSaveAs.Click();
    EXPECT_TRUE(text.HasFocus()) << "Save as without a name";
    text.SetText(u"");
    window.cmdSave.SetFocus();
    window.cmdSave.Click();
    EXPECT_TRUE(text.HasFocus()) << "Save of nothing";
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

TEST_F(MacroEditorButtonsTest, SaveAsOverAFileThatIsNotListedListsIt) {
  Open([this] {
    Edit(u"hello");
    fake.files.files[u"/macros/late.rtf"] = "{\\rtf1 came later}";
    fake.dialogs.typed = {u"late"};
    fake.dialogs.answers = {Answer::Yes};
    window.cmdSaveAs.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(Chosen(), u"late");
    EXPECT_THAT(list.items, ElementsAre(u"bye", u"hello", u"plain", u"late"));
  });
  EXPECT_EQ(Saved(u"late"), u"Good morning");
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

TEST_F(MacroEditorButtonsTest, NameIsNoPattern) {
  Open([this] {
    Add(u"%1'%2");
    text.Type(u"x");
    fake.dialogs.answers = {Answer::No};
    window.cmdCancel.Click();
  });
  EXPECT_TRUE(fake.dialogs.messages[0].text.ends_with(u"macro '%1'%2'?"));
}

TEST_F(MacroEditorButtonsTest, AddStopsAskingWhenTheProgramEndsUnderTheBox) {
  Open([this] {
    fake.dialogs.typed = {u"a b"};
    fake.dialogs.whileOpen = [this] { fake.application.End(); };
    window.cmdAdd.Click();
  });
  EXPECT_EQ(fake.dialogs.asked.size(), 1u);
}

// A box that goes with the program answers as one that is closed.
TEST_F(MacroEditorButtonsTest, NothingIsDoneWhenTheProgramEndsUnderAQuestion) {
  Open([this] {
    Edit(u"hello");
    text.Type(u"!");
    fake.dialogs.whileOpen = [this] { fake.application.End(); };
    fake.dialogs.typed = {u""};
    window.cmdSaveAs.Click();
    fake.dialogs.answers = {Answer::No, Answer::No};
    window.cmdCancel.Click();
    EXPECT_EQ(StateName(), "Editing");
    EXPECT_EQ(text.Text(), u"Good morning!");
    EnterState(window.frmMacros, MacroEditorState::Showing);
    window.cmdDelete.Click();
    EXPECT_EQ(list.Count(), 3);
  });
  EXPECT_EQ(Saved(u"hello"), u"Good morning");
  EXPECT_THAT(Titles(), ElementsAre(u"Cancel modifications", u"Delete macro"));
}

TEST_F(MacroEditorButtonsTest, SaveAsStopsAskingWhenTheProgramEndsUnderItsReplaceQuestion) {
  Open([this] {
    Edit(u"hello");
    fake.dialogs.whileOpen = [this] {
      if (!fake.dialogs.messages.empty()) fake.application.End();
    };
    fake.dialogs.typed = {u"bye", u"copy"};
    fake.dialogs.answers = {Answer::No};
    window.cmdSaveAs.Click();
  });
  EXPECT_EQ(fake.dialogs.asked.size(), 1u);
  EXPECT_EQ(Saved(u"copy"), u"no file");
}

}  // namespace
}  // namespace verlume
