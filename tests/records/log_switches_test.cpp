// Choosing the log folder, and the logging switch.
#include <functional>

#include "macros/room_test.h"
#include "records/dialogue_log.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LogFolderTest : public RoomTest {
 protected:
  LogFolderTest() {
    fake.files.MakeFolder(u"/logs");
    fake.files.MakeFolder(u"/old");
    fake.commonDialog.folders = {u"/logs/"};
  }

  DialogueLog log{state, fake.platform, errors, settings};
};

TEST_F(LogFolderTest, ChosenFolderIsKeptAndWrittenAtOnce) {
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(state.LogFolder, u"/logs/");
  EXPECT_EQ(Setting(u"Logging", u"Logfolder"), u"/logs/");
}

TEST_F(LogFolderTest, DialogSpeaksTheLanguageInForce) {
  fake.commonDialog.folders = {u"/logs/", u"/logs/"};
  log.mnuFileLogFolder_Click();
  state.IsGreek = true;
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(fake.commonDialog.foldersShown[0].title,
            u"Select the folder that will hold the logs of your dialogues");
  EXPECT_EQ(fake.commonDialog.foldersShown[1].title,
            u"Επιλέξτε τον φάκελλο στον οποίο θα καταγράφονται οι διάλογοί σας");
}

TEST_F(LogFolderTest, DialogSuggestsAFolderInTheLanguageInForce) {
  fake.commonDialog.folders = {std::nullopt, std::nullopt};
  log.mnuFileLogFolder_Click();
  state.IsGreek = true;
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(fake.commonDialog.foldersShown[0].suggestion, u"Verlume dialogues");
  EXPECT_EQ(fake.commonDialog.foldersShown[1].suggestion, u"Διάλογοι Verlume");
}

TEST_F(LogFolderTest, DialogStartsInTheFolderInForceOrTheProgramsOwn) {
  fake.commonDialog.folders = {std::nullopt, std::nullopt, std::nullopt};
  log.mnuFileLogFolder_Click();
  state.LogFolder = u"/old/";
  log.mnuFileLogFolder_Click();
  state.LogFolder = u"/vanished/";
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(fake.commonDialog.foldersShown[0].initialFolder, u"/verlume");
  EXPECT_EQ(fake.commonDialog.foldersShown[1].initialFolder, u"/old/");
  EXPECT_EQ(fake.commonDialog.foldersShown[2].initialFolder, u"/verlume");
}

TEST_F(LogFolderTest, CancelIsSilentAndChangesNothing) {
  state.LogFolder = u"/old/";
  fake.commonDialog.folders = {std::nullopt};
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(state.LogFolder, u"/old/");
  EXPECT_EQ(Setting(u"Logging", u"Logfolder"), u"missing");
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(LogFolderTest, ChangeIsRefusedWhileAConversationIsBeingRecorded) {
  state.LogFolder = u"/old/";
  state.LogDialogue = state.LogOpen = true;
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(state.LogFolder, u"/old/");
  EXPECT_THAT(fake.commonDialog.foldersShown, IsEmpty());
  const Message& box = fake.dialogs.messages.at(0);
  EXPECT_EQ(box.title, u"Log folder definition");
  EXPECT_EQ(box.text,
            u"The messages you are exchanging with the remote computer are being recorded and for "
            u"this reason you are not allowed to change the log folder at this time.");
  EXPECT_EQ(box.icon, MessageIcon::Stop);
  EXPECT_EQ(box.buttons, MessageButtons::Ok);
}

TEST_F(LogFolderTest, RefusalSpeaksGreek) {
  state.IsGreek = state.LogDialogue = state.LogOpen = true;
  log.mnuFileLogFolder_Click();
  const Message& box = fake.dialogs.messages.at(0);
  EXPECT_EQ(box.title, u"Ορισμός φακέλλου καταγραφής");
  EXPECT_EQ(box.text,
            u"Η καταγραφή του διαλόγου σας με τον απομακρυσμένο υπολογιστή βρίσκεται σε εξέλιξη "
            u"και για τον λόγο αυτό δεν επιτρέπεται τώρα η αλλαγή του φακέλλου καταγραφής.");
}

TEST_F(LogFolderTest, ChangeIsAllowedOnceLoggingIsOff) {
  state.LogOpen = true;
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(state.LogFolder, u"/logs/");
}

TEST_F(LogFolderTest, ChangeIsAllowedBetweenConversations) {
  state.LogDialogue = true;
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(state.LogFolder, u"/logs/");
}

TEST_F(LogFolderTest, ConversationThatBeginsDuringTheDialogKeepsItsFolder) {
  struct OpenDialog : fake::FakeCommonDialog {
    std::u16string ChooseFolder(std::u16string_view, std::u16string_view,
                                std::u16string_view) override {
      whileOpen();
      return u"/logs/";
    }
    std::function<void()> whileOpen;
  } dialog;
  dialog.whileOpen = [this] { state.LogOpen = true; };
  Platform platform = {fake.window.frmMain,
                       fake.about.frmAbout,
                       fake.macros.frmMacros,
                       fake.people.frmPeople,
                       fake.verify.frmVerify,
                       fake.reach.frmReach,
                       fake.socket,
                       fake.socket.privacy,
                       fake.router,
                       fake.addresses,
                       fake.dialogs,
                       dialog,
                       fake.files,
                       fake.clock,
                       fake.locale,
                       fake.application,
                       fake.help,
                       fake.tools,
                       fake.clipboard,
                       fake.links,
                       fake.attention};
  DialogueLog logUnderDialog{state, platform, errors, settings};
  state.LogFolder = u"/old/";
  state.LogDialogue = true;
  logUnderDialog.mnuFileLogFolder_Click();
  EXPECT_EQ(state.LogFolder, u"/old/");
  EXPECT_EQ(Setting(u"Logging", u"Logfolder"), u"missing");
  EXPECT_THAT(Titles(), ElementsAre(u"Log folder definition"));
}

TEST_F(LogFolderTest, UnwritableSettingsFileIsReported) {
  fake.files.writesFail = FailureNumber::PermissionDenied;
  AnswerNoToErrors();
  log.mnuFileLogFolder_Click();
  ExpectReported(u"70", u"Verlume, 239.");
}

TEST_F(LogFolderTest, CommandPaneGetsTheFocus) {
  log.mnuFileLogFolder_Click();
  EXPECT_EQ(fake.window.rtbCommands.timesFocused, 1);
}

class LoggingSwitchTest : public LogFolderTest {
 protected:
  void ExpectLogging(bool on) {
    EXPECT_EQ(entry.Checked(), on);
    EXPECT_EQ(state.LogDialogue, on);
    EXPECT_EQ(Setting(u"Logging", u"Logdialogue"), on ? u"True" : u"False");
  }

  fake::FakeMenuEntry& entry = fake.window.mnuFileLogRecord;
};

TEST_F(LoggingSwitchTest, UncheckedEntrySwitchesOnWithoutAQuestionWhenThereIsAFolder) {
  state.LogFolder = u"/old/";
  log.mnuFileLogRecord_Click();
  ExpectLogging(true);
  EXPECT_THAT(Titles(), IsEmpty());
  EXPECT_EQ(fake.window.rtbCommands.timesFocused, 1);
}

TEST_F(LoggingSwitchTest, CheckedEntrySwitchesOff) {
  entry.SetChecked(true);
  state.LogDialogue = true;
  log.mnuFileLogRecord_Click();
  ExpectLogging(false);
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(LoggingSwitchTest, MissingFolderIsAskedForAndChosen) {
  fake.dialogs.answers = {Answer::Yes};
  log.mnuFileLogRecord_Click();
  ExpectLogging(true);
  EXPECT_EQ(state.LogFolder, u"/logs/");
  const Message& box = fake.dialogs.messages.at(0);
  EXPECT_EQ(box.title, u"Dialogue logging");
  EXPECT_EQ(box.text,
            u"The application needs to know the folder that will hold the logs of your dialogues."
            u"\r\n\r\nThis message is being displayed because you either have not defined such a "
            u"folder, or the folder you have already defined could not be located by this "
            u"application.\r\n\r\nIf you don't define such a folder now, you will not be able to "
            u"record your dialogues.\r\n\r\nWould you like to define such a folder now?");
  EXPECT_EQ(box.icon, MessageIcon::Question);
  EXPECT_EQ(box.buttons, MessageButtons::YesNo);
  EXPECT_EQ(box.defaultAnswer, Answer::Yes);
}

TEST_F(LoggingSwitchTest, VanishedFolderAsksAndNoLeavesLoggingOff) {
  state.LogFolder = u"/vanished/";
  fake.dialogs.answers = {Answer::No};
  log.mnuFileLogRecord_Click();
  ExpectLogging(false);
  EXPECT_THAT(Titles(), ElementsAre(u"Dialogue logging", u"Dialogue logging"));
  EXPECT_EQ(fake.dialogs.messages[1].text, u"The logs of your dialogues cannot be recorded.");
  EXPECT_EQ(fake.dialogs.messages[1].icon, MessageIcon::Information);
}

TEST_F(LoggingSwitchTest, BoxesSpeakGreek) {
  state.IsGreek = true;
  fake.dialogs.answers = {Answer::No};
  log.mnuFileLogRecord_Click();
  EXPECT_THAT(Titles(), ElementsAre(u"Καταγραφή διαλόγου", u"Καταγραφή διαλόγου"));
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Η εφαρμογή πρέπει να γνωρίζει τον φάκελλο μέσα στον οποίο θα γίνεται η καταγραφή των "
            u"διαλόγων σας.\r\n\r\nΤο μήνυμα αυτό εμφανίζεται είτε διότι δεν έχετε ορίσει κάποιο "
            u"φάκελλο, ή διότι ο φάκελλος που έχετε ήδη ορίσει δεν έγινε δυνατόν να εντοπισθεί από "
            u"την εφαρμογή.\r\n\r\nΑν δεν ορίσετε τώρα έναν φάκελλο, δεν θα μπορέσετε να "
            u"καταγράψετε τους διαλόγους σας.\r\n\r\nΘέλετε να ορίσετε τώρα έναν φάκελλο;");
  EXPECT_EQ(fake.dialogs.messages[1].text,
            u"Η καταγραφή των διαλόγων σας είναι αδύνατον να πραγματοποιηθεί.");
}

TEST_F(LoggingSwitchTest, CancelledFolderDialogLeadsToTheQuestionAgain) {
  fake.commonDialog.folders = {std::nullopt, u"/logs/"};
  fake.dialogs.answers = {Answer::Yes, Answer::Yes};
  log.mnuFileLogRecord_Click();
  ExpectLogging(true);
  EXPECT_THAT(Titles(), ElementsAre(u"Dialogue logging", u"Dialogue logging"));
}

TEST_F(LoggingSwitchTest, FailureOfTheFolderChoiceEndsTheQuestions) {
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.dialogs.answers = {Answer::Yes, Answer::No};
  log.mnuFileLogRecord_Click();
  EXPECT_THAT(Titles(), ElementsAre(u"Dialogue logging", u"Verlume, 239."));
  EXPECT_FALSE(entry.Checked());
  EXPECT_FALSE(state.LogDialogue);
  EXPECT_EQ(fake.window.rtbCommands.timesFocused, 1);
}

// The command that switches logging on first unchecks the entry, whatever the switch is.
TEST_F(LoggingSwitchTest, FolderThatVanishedDuringAConversationCanBeReplaced) {
  state.LogFolder = u"/vanished/";
  state.LogDialogue = state.LogOpen = true;
  fake.dialogs.answers = {Answer::Yes};
  log.mnuFileLogRecord_Click();
  ExpectLogging(true);
  EXPECT_EQ(state.LogFolder, u"/logs/");
}

TEST_F(LoggingSwitchTest, UnwritableSettingsFileIsReported) {
  state.LogFolder = u"/old/";
  fake.files.writesFail = FailureNumber::DiskFull;
  AnswerNoToErrors();
  log.mnuFileLogRecord_Click();
  ExpectReported(u"61", u"Verlume, 238.");
}

}  // namespace
}  // namespace verlume
