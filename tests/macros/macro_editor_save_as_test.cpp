// Saving a macro under another name.
#include "macros/macro_editor_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using MacroEditorSaveAsTest = MacroEditorTest;

TEST_F(MacroEditorSaveAsTest, SaveAsWritesACopyAndShowsIt) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsAsksInGreekAndStopsAtNoName) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsOfAWrongNameAsksAgain) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsUnderItsOwnNameAsksNothingMore) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsReplacesAnotherMacroOnlyAfterYes) {
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

TEST_F(MacroEditorSaveAsTest, ReplaceQuestionSpeaksGreek) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsInAnotherLetterCaseTakesTheNameOnDisk) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsInAnotherLetterCaseIsANewMacroWhereCaseCounts) {
  Open([this] {
    Edit(u"hello");
    fake.dialogs.typed = {u"HELLO"};
    window.cmdSaveAs.Click();
    EXPECT_EQ(Chosen(), u"HELLO");
    EXPECT_EQ(list.Count(), 4);
  });
  EXPECT_EQ(Saved(u"HELLO"), u"Good morning");
}

TEST_F(MacroEditorSaveAsTest, FailedSaveAsStaysOnTheMacroThatIsEdited) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsOverAFileThatIsNotListedListsIt) {
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

TEST_F(MacroEditorSaveAsTest, SaveAsStopsAskingWhenTheProgramEndsUnderItsReplaceQuestion) {
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
