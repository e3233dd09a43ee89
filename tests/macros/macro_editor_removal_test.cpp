// Cancelling changes and deleting macros, and where the focus is then.
#include "macros/macro_editor_fixture.h"
#include "macros/macro_editor_states.h"

namespace verlume {
namespace {

using testing::ElementsAre;

using MacroEditorRemovalTest = MacroEditorTest;

TEST_F(MacroEditorRemovalTest, NoToCancelGoesOnEditing) {
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

TEST_F(MacroEditorRemovalTest, CancelReloadsASavedMacro) {
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

TEST_F(MacroEditorRemovalTest, CancelOfANewMacroTakesItFromTheList) {
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

TEST_F(MacroEditorRemovalTest, CancelOfTheOnlyMacroLeavesAnEmptyList) {
  fake.files.files.clear();
  Open([this] {
    Add(u"new");
    fake.dialogs.answers = {Answer::Yes};
    window.cmdCancel.Click();
    EXPECT_EQ(StateName(), "Empty");
    EXPECT_EQ(list.tag, u"no");
  });
}

TEST_F(MacroEditorRemovalTest, CancelThatCannotReloadLosesNothing) {
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

TEST_F(MacroEditorRemovalTest, DeleteTakesFileAndName) {
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

TEST_F(MacroEditorRemovalTest, DeleteOfTheLastMacroLeavesAddAndClose) {
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

TEST_F(MacroEditorRemovalTest, FailedDeleteIsReportedAndTheMacroStays) {
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

TEST_F(MacroEditorRemovalTest, DeleteOfAMacroThatVanishedIsReportedAndTakesItsName) {
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

TEST_F(MacroEditorRemovalTest, NoToTheDeletionOfAVanishedMacroKeepsItShown) {
  Open([this] {
    Choose(u"hello");
    fake.files.files.erase(u"/macros/hello.rtf");
    fake.dialogs.answers = {Answer::No};
    window.cmdDelete.Click();
    EXPECT_EQ(StateName(), "Showing");
    EXPECT_EQ(list.Count(), 3);
  });
}

TEST_F(MacroEditorRemovalTest, KeyboardGoesToTheListOnceNothingIsEdited) {
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

TEST_F(MacroEditorRemovalTest, KeyboardGoesBackToATextThatIsStillEdited) {
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

TEST_F(MacroEditorRemovalTest, NameIsNoPattern) {
  Open([this] {
    Add(u"%1'%2");
    text.Type(u"x");
    fake.dialogs.answers = {Answer::No};
    window.cmdCancel.Click();
  });
  EXPECT_TRUE(fake.dialogs.messages[0].text.ends_with(u"macro '%1'%2'?"));
}

// A box that is closed because the program ends gives the same answer as a closed one.
TEST_F(MacroEditorRemovalTest, NothingIsDoneWhenTheProgramEndsDuringAQuestion) {
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

}  // namespace
}  // namespace verlume
