#include "records/dialogue_files.h"

#include "macros/room_test.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

FileChoice Chosen(std::u16string_view path, std::uint32_t flags = 0) {
  FileChoice choice;
  choice.fileName = path;
  choice.flags = flags;
  return choice;
}

class DialogueFilesTest : public RoomTest {
 protected:
  DialogueFilesTest() {
    fake.files.MakeFolder(u"/logs");
    state.LogFolder = u"/logs/";
    state.LogFileStem = u"bob";
  }

  void Load(Answer format, std::u16string_view path) {
    fake.dialogs.answers.push_front(format);
    fake.commonDialog.files = {Chosen(path)};
    dialogueFiles.mnuFileLogOpen_Click();
  }
  void Save(Answer format, std::u16string_view path) {
    fake.dialogs.answers.push_front(format);
    fake.commonDialog.files = {Chosen(path)};
    dialogueFiles.mnuFileLogSaveAs_Click();
  }
  const FileChoice& Dialog() const { return fake.commonDialog.filesShown.at(0); }

  fake::FakeRichTextBox& rtbData = fake.window.rtbData;
  std::map<std::u16string, std::string, std::less<>>& disk = fake.files.files;
  DialogueFiles dialogueFiles{state, fake.platform, errors};
};

TEST_F(DialogueFilesTest, LoadAsksForTheFormatWithoutCautionWhileThePaneIsEmpty) {
  fake.dialogs.answers = {Answer::Cancel};
  dialogueFiles.mnuFileLogOpen_Click();
  const Message& question = fake.dialogs.messages.at(0);
  EXPECT_EQ(question.title, u"Load dialogue");
  EXPECT_EQ(question.text,
            u"Click 'Yes' to load a dialogue from a rich text format file.\r\n\r\n"
            u"Click 'No' to load a dialogue from a plain text format file.\r\n\r\n"
            u"Click 'Cancel' to cancel the load process.");
  EXPECT_EQ(question.icon, MessageIcon::Question);
  EXPECT_EQ(question.buttons, MessageButtons::YesNoCancel);
  EXPECT_EQ(question.defaultAnswer, Answer::Yes);
}

TEST_F(DialogueFilesTest, LoadCautionsWhileThePaneHoldsSomething) {
  rtbData.SetText(u"old");
  fake.dialogs.answers = {Answer::Cancel};
  dialogueFiles.mnuFileLogOpen_Click();
  EXPECT_TRUE(fake.dialogs.messages.at(0).text.ends_with(
      u"Click 'Cancel' to cancel the load process.\r\n\r\nCAUTION: The current contents of the "
      u"dialogue, will be replaced by the dialogue that will be loaded."));
}

TEST_F(DialogueFilesTest, LoadAsksInGreek) {
  state.IsGreek = true;
  rtbData.SetText(u"old");
  fake.dialogs.answers = {Answer::Cancel};
  dialogueFiles.mnuFileLogOpen_Click();
  EXPECT_THAT(Titles(), ElementsAre(u"Φόρτωμα διαλόγου"));
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Πατήστε το «Ναι» για να φορτώσετε έναν διάλογο από αρχείο μορφής εμπλουτισμένου "
            u"κειμένου.\r\n\r\nΠατήστε το «Όχι» για να φορτώσετε έναν διάλογο από αρχείο μορφής "
            u"απλού κειμένου.\r\n\r\nΠατήστε το «Άκυρο» για να ακυρώσετε την διδακασία του "
            u"φορτώματος.\r\n\r\nΠΡΟΣΟΧΗ: Το τρέχον περιεχόμενο του διαλόγου, θα αντικατασταθεί "
            u"από αυτό που θα φορτωθεί.");
}

TEST_F(DialogueFilesTest, CancelOfTheQuestionLoadsNothing) {
  rtbData.SetText(u"old");
  fake.dialogs.answers = {Answer::Cancel};
  dialogueFiles.mnuFileLogOpen_Click();
  EXPECT_THAT(fake.commonDialog.filesShown, IsEmpty());
  EXPECT_EQ(rtbData.Text(), u"old");
}

TEST_F(DialogueFilesTest, YesLoadsRichTextInPlaceOfTheOldDialogue) {
  rtbData.SetText(u"old");
  disk[u"/logs/a.rtf"] = "{\\rtf1\\b new}";
  Load(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(rtbData.Text(), u"new");
  rtbData.Select(0, 3);
  EXPECT_EQ(rtbData.SelFormat().bold, true);
  EXPECT_EQ(Dialog().title, u"Load dialogue as RTF");
  EXPECT_EQ(Dialog().filter, u"Rich text format (*.rtf)|*.rtf");
  EXPECT_EQ(Dialog().defaultExtension, u"rtf");
}

TEST_F(DialogueFilesTest, NoLoadsPlainTextAsItStands) {
  disk[u"/logs/a.txt"] = "{\\rtf1\\b new}";
  Load(Answer::No, u"/logs/a.txt");
  EXPECT_EQ(rtbData.Text(), u"{\\rtf1\\b new}");
  EXPECT_EQ(Dialog().title, u"Load dialogue as TXT");
  EXPECT_EQ(Dialog().filter, u"Text document (*.txt)|*.txt|");
  EXPECT_EQ(Dialog().defaultExtension, u"txt");
}

TEST_F(DialogueFilesTest, LoadDialogStartsInTheLogFolderAndProposesNoName) {
  disk[u"/logs/a.rtf"] = "";
  Load(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(Dialog().initialFolder, u"/logs/");
  EXPECT_EQ(Dialog().fileName, u"");
  EXPECT_EQ(Dialog().flags, 0x281C04u);
}

TEST_F(DialogueFilesTest, DialogsOfLoadingSpeakGreek) {
  state.IsGreek = true;
  disk[u"/logs/a.rtf"] = disk[u"/logs/a.txt"] = "";
  Load(Answer::Yes, u"/logs/a.rtf");
  Load(Answer::No, u"/logs/a.txt");
  const std::vector<FileChoice>& shown = fake.commonDialog.filesShown;
  EXPECT_EQ(shown.at(0).title, u"Φόρτωμα διαλόγου ως RTF");
  EXPECT_EQ(shown.at(0).filter, u"Μορφή εμπλουτισμένου κειμένου (*.rtf)|*.rtf");
  EXPECT_EQ(shown.at(1).title, u"Φόρτωμα διαλόγου ως TXT");
  EXPECT_EQ(shown.at(1).filter, u"Έγγραφο κειμένου (*.txt)|*.txt");
}

TEST_F(DialogueFilesTest, LastFilterIsKept) {
  disk[u"/logs/a.txt"] = "";
  Load(Answer::No, u"/logs/a.txt");
  EXPECT_EQ(state.DialogFilter, u"Text document (*.txt)|*.txt|");
  Save(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(state.DialogFilter, u"Text document (*.txt)|*.txt|");  // nothing to save: no dialog
  rtbData.SetText(u"line");
  Save(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(state.DialogFilter, u"Rich text format (*.rtf)|*.rtf");
}

TEST_F(DialogueFilesTest, OtherExtensionIsRefusedAndNothingLoaded) {
  rtbData.SetText(u"old");
  fake.dialogs.answers = {Answer::Yes};
  FileChoice other = Chosen(u"/logs/a.rtf", dialog_flag::kExtensionDifferent);
  fake.commonDialog.files = {other};
  dialogueFiles.mnuFileLogOpen_Click();
  const Message& refusal = fake.dialogs.messages.at(1);
  EXPECT_EQ(refusal.text, u"You may not alter the '.rtf' extension.");
  EXPECT_EQ(refusal.title, u"Load dialogue as RTF");
  EXPECT_EQ(refusal.icon, MessageIcon::Stop);
  EXPECT_EQ(rtbData.Text(), u"old");
}

TEST_F(DialogueFilesTest, OtherExtensionIsRefusedInGreekAndNothingSaved) {
  state.IsGreek = true;
  rtbData.SetText(u"line");
  fake.dialogs.answers = {Answer::No};
  fake.commonDialog.files = {Chosen(u"/logs/a.txt", dialog_flag::kExtensionDifferent)};
  dialogueFiles.mnuFileLogSaveAs_Click();
  EXPECT_EQ(fake.dialogs.messages.at(1).text,
            u"Δεν επιτρέπεται να τροποποιήσετε την κατάληξη «.txt».");
  EXPECT_EQ(fake.dialogs.messages.at(1).title, u"Αποθήκευση διαλόγου ως TXT");
  EXPECT_THAT(disk, IsEmpty());
}

TEST_F(DialogueFilesTest, CancelledDialogIsSilentAndChangesNothing) {
  rtbData.SetText(u"old");
  for (const bool save : {false, true}) {
    fake.dialogs.answers = {Answer::Yes};
    fake.commonDialog.files = {std::nullopt};
    save ? dialogueFiles.mnuFileLogSaveAs_Click() : dialogueFiles.mnuFileLogOpen_Click();
  }
  EXPECT_THAT(Titles(), ElementsAre(u"Load dialogue", u"Save dialogue as"));
  EXPECT_EQ(rtbData.Text(), u"old");
  EXPECT_THAT(disk, IsEmpty());
  EXPECT_EQ(timesReset, 0);
}

TEST_F(DialogueFilesTest, VanishedFileIsReportedAndTheDialogueStays) {
  rtbData.SetText(u"old");
  AnswerNoToErrors();
  Load(Answer::Yes, u"/logs/gone.rtf");
  ExpectReported(u"53", u"Verlume, 242.");
  EXPECT_EQ(rtbData.Text(), u"old");
  EXPECT_EQ(fake.window.rtbCommands.timesFocused, 1);
}

TEST_F(DialogueFilesTest, FileThatIsNoRichTextLoadsAsPlainText) {
  disk[u"/logs/a.rtf"] = "just words";
  Load(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(rtbData.Text(), u"just words");
}

TEST_F(DialogueFilesTest, EmptyDialogueIsNotSaved) {
  dialogueFiles.mnuFileLogSaveAs_Click();
  state.IsGreek = true;
  dialogueFiles.mnuFileLogSaveAs_Click();
  const std::vector<Message>& boxes = fake.dialogs.messages;
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text, u"There is no dialogue to save.");
  EXPECT_EQ(boxes[0].title, u"Save dialogue as");
  EXPECT_EQ(boxes[0].icon, MessageIcon::Information);
  EXPECT_EQ(boxes[1].text, u"Δεν υπάρχει διάλογος προς αποθήκευση.");
  EXPECT_EQ(boxes[1].title, u"Αποθήκευση διαλόγου ως");
  EXPECT_THAT(fake.commonDialog.filesShown, IsEmpty());
}

TEST_F(DialogueFilesTest, SaveAsksForTheFormat) {
  rtbData.SetText(u"line");
  fake.dialogs.answers = {Answer::Cancel, Answer::Cancel};
  dialogueFiles.mnuFileLogSaveAs_Click();
  state.IsGreek = true;
  dialogueFiles.mnuFileLogSaveAs_Click();
  EXPECT_EQ(fake.dialogs.messages.at(0).text,
            u"Click 'Yes' to save the dialogue in a rich text format file.\r\n\r\n"
            u"Click 'No' to save the dialogue in a plain text format file.\r\n\r\n"
            u"Click 'Cancel' to cancel the save process.");
  EXPECT_EQ(fake.dialogs.messages.at(1).text,
            u"Πατήστε το «Ναι» για να αποθηκεύσετε τον διάλογο σε αρχείο μορφής εμπλουτισμένου "
            u"κειμένου.\r\n\r\nΠατήστε το «Όχι» για να αποθηκεύσετε τον διάλογο σε αρχείο μορφής "
            u"απλού κειμένου.\r\n\r\nΠατήστε το «Άκυρο» για να ακυρώσετε την διαδικασία της "
            u"αποθηκεύσεως.");
  for (const Message& question : fake.dialogs.messages) {
    EXPECT_EQ(question.icon, MessageIcon::Question);
    EXPECT_EQ(question.buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(question.defaultAnswer, Answer::Yes);
  }
  EXPECT_THAT(Titles(), ElementsAre(u"Save dialogue as", u"Αποθήκευση διαλόγου ως"));
  EXPECT_THAT(fake.commonDialog.filesShown, IsEmpty());
}

TEST_F(DialogueFilesTest, YesSavesRichTextThatLoadsAsItWas) {
  rtbData.SetRtf(u"{\\rtf1\\b bold\\b0  plain}");
  const std::u16string before = rtbData.Rtf();
  Save(Answer::Yes, u"/logs/a.rtf");
  EXPECT_THAT(disk[u"/logs/a.rtf"], testing::StartsWith("{\\rtf1"));
  rtbData.SetText(u"");
  Load(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(rtbData.Rtf(), before);
}

TEST_F(DialogueFilesTest, NoSavesTheVisibleCharactersOnly) {
  rtbData.SetRtf(u"{\\rtf1 [10:00:00]<Bob>\\b hello}");
  Save(Answer::No, u"/logs/a.txt");
  EXPECT_EQ(disk[u"/logs/a.txt"], "[10:00:00]<Bob>hello");
}

TEST_F(DialogueFilesTest, LinesAreSavedAsPlainTextWithALineFeedBetweenAndLoadBackSo) {
  rtbData.SetText(u"<Bob>one\r\n<Ann>two");
  Save(Answer::No, u"/logs/a.txt");
  EXPECT_EQ(disk[u"/logs/a.txt"], "<Bob>one\n<Ann>two");
  rtbData.SetText(u"");
  Load(Answer::No, u"/logs/a.txt");
  EXPECT_EQ(rtbData.Text(), u"<Bob>one\n<Ann>two");
}

TEST_F(DialogueFilesTest, PlainTextSavesUnderItsOwnTitleFilterAndExtension) {
  rtbData.SetText(u"line");
  Save(Answer::No, u"/logs/a.txt");
  EXPECT_EQ(Dialog().title, u"Save dialogue as TXT");
  EXPECT_EQ(Dialog().filter, u"Text document (*.txt)|*.txt|");
  EXPECT_EQ(Dialog().defaultExtension, u"txt");
}

TEST_F(DialogueFilesTest, DialogsOfSavingSpeakGreek) {
  state.IsGreek = true;
  rtbData.SetText(u"line");
  Save(Answer::Yes, u"/logs/a.rtf");
  Save(Answer::No, u"/logs/a.txt");
  const std::vector<FileChoice>& shown = fake.commonDialog.filesShown;
  EXPECT_EQ(shown.at(0).title, u"Αποθήκευση διαλόγου ως RTF");
  EXPECT_EQ(shown.at(0).filter, u"Μορφή εμπλουτισμένου κειμένου (*.rtf)|*.rtf");
  EXPECT_EQ(shown.at(1).title, u"Αποθήκευση διαλόγου ως TXT");
  EXPECT_EQ(shown.at(1).filter, u"Έγγραφο κειμένου (*.txt)|*.txt");
}

TEST_F(DialogueFilesTest, SaveDialogProposesThePartnersName) {
  rtbData.SetText(u"line");
  Save(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(Dialog().fileName, u"bob");
  EXPECT_EQ(Dialog().title, u"Save dialogue as RTF");
  EXPECT_EQ(Dialog().initialFolder, u"/logs/");
  EXPECT_EQ(Dialog().defaultExtension, u"rtf");
  EXPECT_EQ(Dialog().flags, 0x288C06u);
}

TEST_F(DialogueFilesTest, FullDiskIsReportedAndTheOldFileStays) {
  rtbData.SetText(u"line");
  disk[u"/logs/a.rtf"] = "the old file";
  fake.files.writesFail = FailureNumber::DiskFull;
  AnswerNoToErrors();
  Save(Answer::Yes, u"/logs/a.rtf");
  ExpectReported(u"61", u"Verlume, 241.");
  EXPECT_EQ(disk[u"/logs/a.rtf"], "the old file");
}

TEST_F(DialogueFilesTest, NothingIsLoadedOrSavedWhenTheProgramEndsDuringTheQuestion) {
  rtbData.SetText(u"line");
  fake.dialogs.whileOpen = [this] { fake.application.End(); };
  // A box that is closed because the program ends gives the same answer as a closed one.
  fake.dialogs.answers = {Answer::Cancel, Answer::Cancel};
  dialogueFiles.mnuFileLogOpen_Click();
  dialogueFiles.mnuFileLogSaveAs_Click();
  EXPECT_THAT(fake.commonDialog.filesShown, IsEmpty());
  EXPECT_EQ(rtbData.Text(), u"line");
  EXPECT_THAT(disk, IsEmpty());
}

TEST_F(DialogueFilesTest, CommandPaneGetsTheFocusBackAfterACancelAndARefusal) {
  rtbData.SetText(u"line");
  fake::FakeRichTextBox& pane = fake.window.rtbCommands;
  const auto expectFocus = [&pane](const std::function<void()>& act) {
    const int before = pane.timesFocused;
    act();
    EXPECT_EQ(pane.timesFocused, before + 1);
  };
  for (const bool save : {false, true}) {
    const auto choose = [&] {
      save ? dialogueFiles.mnuFileLogSaveAs_Click() : dialogueFiles.mnuFileLogOpen_Click();
    };
    fake.dialogs.answers = {Answer::Cancel};
    expectFocus(choose);
    fake.dialogs.answers = {Answer::Yes};
    fake.commonDialog.files = {std::nullopt};
    expectFocus(choose);
    fake.dialogs.answers = {Answer::Yes};
    fake.commonDialog.files = {Chosen(u"/logs/a.txt", dialog_flag::kExtensionDifferent)};
    expectFocus(choose);
  }
}

TEST_F(DialogueFilesTest, CommandPaneGetsTheFocusBack) {
  rtbData.SetText(u"line");
  Save(Answer::Yes, u"/logs/a.rtf");
  Load(Answer::Yes, u"/logs/a.rtf");
  EXPECT_EQ(fake.window.rtbCommands.timesFocused, 2);
}

TEST_F(DialogueFilesTest, ProgressIsShownUntilAllOfTheDialogueIsThere) {
  const fake::FakeProgressBar& bar = fake.window.prgStatus;
  EXPECT_FALSE(bar.visible);
  dialogueFiles.rtbData_LoadProgress(1);
  EXPECT_TRUE(bar.visible);
  EXPECT_EQ(bar.value, 1);
  dialogueFiles.rtbData_LoadProgress(99);
  EXPECT_TRUE(bar.visible);
  EXPECT_EQ(bar.value, 99);
  dialogueFiles.rtbData_LoadProgress(100);
  EXPECT_FALSE(bar.visible);
}

}  // namespace
}  // namespace verlume
