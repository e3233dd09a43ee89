#include "macros/macro_saving.h"

#include "macros/room_test.h"
#include "richtext/rtf_reader.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MacroSavingTest : public RoomTest {
 protected:
  MacroSavingTest() {
    fake.files.MakeFolder(u"/macros");
    state.MacrosFolder = u"/macros/";
    pane.SetText(u"Good morning");
    fake.window.mnuToolsEditMacros.onClick = [this] { ++timesEditorOpened; };
  }

  static SelectionFormat Bold() {
    SelectionFormat format;
    format.bold = true;
    return format;
  }
  // The text of a macro's file.
  std::u16string Saved(const std::u16string& name) {
    const auto file = fake.files.files.find(u"/macros/" + name + u".rtf");
    return file == fake.files.files.end() ? u"no file" : richtext::ReadRtf(file->second).text;
  }

  fake::FakeRichTextBox& pane = fake.window.rtbCommands;
  int timesEditorOpened = 0;
  MacroStore store{state, fake.platform, errors, settings};
  MacroSaving saving{state, fake.platform, errors, store};
};

TEST_F(MacroSavingTest, PaneIsWrittenAsRichTextAndEmptied) {
  pane.Select(0, 4);
  pane.SetSelFormat(Bold());
  fake.dialogs.typed = {u"hello"};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(Saved(u"hello"), u"Good morning");
  EXPECT_TRUE(richtext::ReadRtf(fake.files.files[u"/macros/hello.rtf"]).runs.front().format.bold);
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_EQ(pane.timesFocused, 1);
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(MacroSavingTest, NameIsAskedForInBothLanguages) {
  for (const bool isGreek : {false, true}) {
    state.IsGreek = isGreek;
    pane.SetText(u"text");
    fake.dialogs.typed = {isGreek ? u"ena" : u"one"};
    saving.SaveCommandPaneAsMacro();
  }
  EXPECT_EQ(fake.dialogs.asked[0].title, u"Macro name");
  EXPECT_EQ(fake.dialogs.asked[0].prompt,
            u"Type the name under which this macro will be saved.\r\n\r\nAvoid using the characters"
            u"  \\  /  :  *  ?  \"  <  >  |  .  and the space.");
  EXPECT_EQ(fake.dialogs.asked[0].defaultText, u"");
  EXPECT_EQ(fake.dialogs.asked[1].title, u"Όνομα μακροεντολής");
  EXPECT_EQ(fake.dialogs.asked[1].prompt,
            u"Πληκτρολογήστε το όνομα με το οποίο θέλετε να αποθηκευθεί αυτή η "
            u"μακροεντολή.\r\n\r\nΑποφύγετε την χρήση των χαρακτήρων"
            u"  \\  /  :  *  ?  \"  <  >  |  .  και το κενό.");
}

TEST_F(MacroSavingTest, NoToTheFolderQuestionLeavesThePane) {
  state.MacrosFolder = u"/vanished/";
  fake.dialogs.answers = {Answer::No, Answer::No};
  saving.SaveCommandPaneAsMacro();
  state.IsGreek = true;
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(fake.dialogs.messages[1].text, u"The current macro cannot be saved.");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Save macro");
  EXPECT_EQ(fake.dialogs.messages[3].text,
            u"Η τρέχουσα μακροεντολή είναι αδύνατον να αποθηκευθεί.");
  EXPECT_EQ(fake.dialogs.messages[3].title, u"Αποθήκευση μακροεντολής");
  EXPECT_EQ(pane.Text(), u"Good morning");
  EXPECT_EQ(pane.timesFocused, 2);
}

TEST_F(MacroSavingTest, EmptyPaneOffersTheEditor) {
  pane.SetText(u"");
  pane.SetSelFormat(Bold());
  fake.dialogs.answers = {Answer::Yes, Answer::No};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(timesEditorOpened, 1);
  state.IsGreek = true;
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(timesEditorOpened, 1);
  const Message& english = fake.dialogs.messages[0];
  EXPECT_EQ(english.text, u"There is no macro to save.\r\n\r\nWould you like to edit your macros?");
  EXPECT_EQ(english.title, u"Save macro");
  EXPECT_EQ(english.icon, MessageIcon::Information);
  EXPECT_EQ(english.buttons, MessageButtons::YesNo);
  EXPECT_EQ(fake.dialogs.messages[1].text,
            u"Δεν υπάρχει μακροεντολή προς αποθήκευση.\r\n\r\nΜήπως θέλετε να επεξεργασθείτε τις "
            u"μακροεντολές σας;");
  EXPECT_EQ(pane.timesFocused, 2);
}

TEST_F(MacroSavingTest, CancelledNameIsAskedAboutAndYesSavesNothing) {
  fake.dialogs.typed = {u"", u"wrong name", u"", u""};
  fake.dialogs.answers = {Answer::No, Answer::No, Answer::Yes};
  saving.SaveCommandPaneAsMacro();
  EXPECT_THAT(Titles(), ElementsAre(u"Save macro", u"Macro name", u"Save macro", u"Save macro"));
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"You didn't type the name under which this macro will be saved.\r\n\r\nAre you sure "
            u"you don't want to save this macro?");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Question);
  EXPECT_EQ(pane.Text(), u"Good morning");
  EXPECT_THAT(fake.files.files, IsEmpty());
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(MacroSavingTest, GivingUpIsAskedAboutInGreek) {
  state.IsGreek = true;
  fake.dialogs.typed = {u""};
  fake.dialogs.answers = {Answer::Yes};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Αποθήκευση μακροεντολής");
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Δεν πληκτρολογήσατε το όνομα με το οποίο θέλετε να αποθηκευθεί αυτή η "
            u"μακροεντολή.\r\n\r\nΘέλετε πράγματι να ακυρώσετε την αποθήκευση αυτής της "
            u"μακροεντολής;");
}

TEST_F(MacroSavingTest, WrongNameIsToldAndProposedAgain) {
  fake.dialogs.typed = {u"a.b", u"good"};
  saving.SaveCommandPaneAsMacro();
  state.IsGreek = true;
  pane.SetText(u"text");
  fake.dialogs.typed = {u"a.b", u"kalo"};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(fake.dialogs.messages[0].text, u"The name you typed is incorrect.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Macro name");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(fake.dialogs.messages[1].text, u"Το όνομα που πληκτρολογήσατε είναι λανθασμένο.");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Όνομα μακροεντολής");
  EXPECT_EQ(fake.dialogs.asked[1].defaultText, u"a.b");
  EXPECT_EQ(Saved(u"good"), u"Good morning");
}

TEST_F(MacroSavingTest, NameOfADeviceIsToldAndProposedAgain) {
  fake.files.hasDevices = true;
  fake.dialogs.typed = {u"CON", u"console"};
  saving.SaveCommandPaneAsMacro();
  state.IsGreek = true;
  pane.SetText(u"text");
  fake.dialogs.typed = {u"nul", u"kalo"};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(fake.dialogs.messages[0].text, u"Windows keeps the name 'CON' for a device.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Macro name");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Stop);
  EXPECT_EQ(fake.dialogs.messages[1].text, u"Τα Windows κρατούν το όνομα «nul» για μία συσκευή.");
  EXPECT_EQ(fake.dialogs.asked[1].defaultText, u"CON");
  EXPECT_EQ(Saved(u"console"), u"Good morning");
}

TEST_F(MacroSavingTest, WhereThereAreNoDevicesTheirNamesAreFree) {
  fake.dialogs.typed = {u"CON"};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(fake.dialogs.messages.size(), 0u);
  EXPECT_EQ(Saved(u"CON"), u"Good morning");
}

TEST_F(MacroSavingTest, ExistingMacroIsReplacedOnlyAfterYes) {
  fake.files.files[u"/macros/hello.rtf"] = "{\\rtf1 old}";
  fake.dialogs.typed = {u"hello", u"other"};
  fake.dialogs.answers = {Answer::No};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(fake.dialogs.asked[1].defaultText, u"hello");
  EXPECT_EQ(Saved(u"hello"), u"old");
  EXPECT_EQ(Saved(u"other"), u"Good morning");

  pane.SetText(u"Good evening");
  state.IsGreek = true;
  fake.dialogs.typed = {u"hello"};
  fake.dialogs.answers = {Answer::Yes};
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(Saved(u"hello"), u"Good evening");

  const Message& english = fake.dialogs.messages[0];
  EXPECT_EQ(english.text,
            u"A macro named 'hello', already exists.\r\n\r\nWould you like to replace it?");
  EXPECT_EQ(english.title, u"Macro name");
  EXPECT_EQ(english.icon, MessageIcon::Stop);
  EXPECT_EQ(english.buttons, MessageButtons::YesNo);
  EXPECT_EQ(english.defaultAnswer, Answer::No);
  EXPECT_EQ(fake.dialogs.messages[1].text,
            u"Υπάρχει ήδη μακροεντολή με το όνομα «hello».\r\n\r\nΜήπως θέλετε να την "
            u"αντικαταστήσετε;");
}

TEST_F(MacroSavingTest, NameInAnotherLetterCaseIsFoundAsTheFileSystemFindsIt) {
  fake.files.ignoresCase = true;
  fake.files.files[u"/macros/Hello.rtf"] = "{\\rtf1 old}";
  fake.dialogs.typed = {u"hello"};
  fake.dialogs.answers = {Answer::Yes};
  saving.SaveCommandPaneAsMacro();
  EXPECT_THAT(Titles(), ElementsAre(u"Macro name"));
  EXPECT_EQ(Saved(u"Hello"), u"Good morning");
}

TEST_F(MacroSavingTest, FullDiskIsReportedAndThePaneKeepsItsText) {
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.dialogs.typed = {u"hello"};
  AnswerNoToErrors();
  saving.SaveCommandPaneAsMacro();
  ExpectReported(u"61", u"Verlume, 245.");
  EXPECT_EQ(pane.Text(), u"Good morning");
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(MacroSavingTest, FolderThatVanishesWhileTheNameIsAskedForIsReported) {
  fake.dialogs.typed = {u"hello"};
  fake.dialogs.whileOpen = [this] { fake.files.RemoveFolder(u"/macros"); };
  AnswerNoToErrors();
  saving.SaveCommandPaneAsMacro();
  ExpectReported(u"76", u"Verlume, 245.");
  EXPECT_EQ(pane.Text(), u"Good morning");
}

TEST_F(MacroSavingTest, StopsAskingWhenTheProgramEndsDuringTheBox) {
  fake.dialogs.typed = {u""};
  fake.dialogs.whileOpen = [this] { fake.application.End(); };
  saving.SaveCommandPaneAsMacro();
  EXPECT_EQ(fake.dialogs.asked.size(), 1u);
  EXPECT_THAT(Titles(), IsEmpty());
  EXPECT_THAT(fake.files.files, IsEmpty());
}

}  // namespace
}  // namespace verlume
