#include "shell/program/start_up.h"

#include "platform/run_time_failure.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class StartUpTest : public ShellTest {
 protected:
  StartUpTest() {
    state = AppState();
    window.mnuFileLogFolder.onClick = [this] {
      ++logFolderChoices;
      state.LogFolder = chosenFolder;
    };
    window.mnuFileMacrosFolder.onClick = [this] {
      ++macrosFolderChoices;
      state.MacrosFolder = chosenFolder;
    };
    window.mnuFileLogRecord.onClick = [this] {
      state.LogDialogue = !window.mnuFileLogRecord.checked;
      window.mnuFileLogRecord.checked = state.LogDialogue;
    };
  }

  // Creates a settings file with this text, and the folders.
  void Keep(const std::string& text) { fake.files.files[kIniFile] = text; }

  int logFolderChoices = 0;
  int macrosFolderChoices = 0;
  std::u16string chosenFolder = u"/nowhere/";
  std::vector<std::string> steps;
  Language language{state, platform, errors, settings};
  StartUp startUp{state,
                  platform,
                  errors,
                  settings,
                  language,
                  {[this] { steps.push_back("reset"); },
                   [this] {
                     steps.push_back("marker");
                     return std::u16string(u"<marker>");
                   },
                   [this] { steps.push_back("style"); }}};
};

TEST_F(StartUpTest, FindsItsFilesInTheirFolders) {
  startUp.Form_Load();
  EXPECT_EQ(state.IniFile, u"/verlume/Verlume.ini");
  EXPECT_EQ(state.HelpFileGreek, u"/verlume/VerlumeGR.hlp");
  EXPECT_EQ(state.HelpFileEnglish, u"/verlume/VerlumeUK.hlp");
}

TEST_F(StartUpTest, SetsTheInitialValues) {
  state.IsGreek = state.ExitConfirmed = state.ForeignText = state.RemoteMessage = true;
  state.LogOpen = true;
  state.History.fill(u"old");
  state.HistoryUp = state.HistoryDown = 17;
  state.LogFileStem = u"old";
  startUp.Form_Load();
  EXPECT_FALSE(state.IsGreek);
  EXPECT_FALSE(state.ExitConfirmed);
  EXPECT_FALSE(state.ForeignText);
  EXPECT_FALSE(state.RemoteMessage);
  EXPECT_FALSE(state.LogOpen);
  EXPECT_EQ(state.LogFileStem, u"");
  EXPECT_EQ(state.ProtocolMarker, u"<marker>");
  EXPECT_EQ(state.History[0], u"0");
  for (int line = 1; line <= kHistoryCapacity; ++line) EXPECT_EQ(state.History[line], u"");
  EXPECT_EQ(state.HistoryUp, 1);
  EXPECT_EQ(state.HistoryDown, -1);
  EXPECT_EQ(state.MacroIndex, -1);
  EXPECT_EQ(steps, (std::vector<std::string>{"reset", "marker"}));
}

TEST_F(StartUpTest, ShowsOnlyTheLocalAddressAndNickname) {
  window.lblColor.caption = window.lblLocalPort.caption = u"as designed";
  window.rtbData.SetText(u"x");
  window.rtbCommands.SetText(u"x");
  window.rtbData.tag = window.rtbCommands.tag = u"x";
  startUp.Form_Load();
  EXPECT_EQ(window.lblLocalIP.caption, u"192.0.2.1");
  EXPECT_EQ(window.lblLocalNickname.caption, u"fakehost");
  for (const fake::FakeLabel* label :
       {&window.lblStatus, &window.lblWaiting, &window.lblCurrentDateTime,
        &window.lblChatStartDateTime, &window.lblLocalPort, &window.lblRemoteIP,
        &window.lblRemotePort, &window.lblChatDuration, &window.lblBytesSent,
        &window.lblBytesReceived, &window.lblColor, &window.lblRemoteNickname}) {
    EXPECT_EQ(label->caption, u"");
  }
  EXPECT_EQ(window.rtbData.Text(), u"");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
  EXPECT_EQ(window.rtbData.tag, u"");
  EXPECT_EQ(window.rtbCommands.tag, u"");
  EXPECT_EQ(window.rtbCommands.SelStart(), 0u);
  EXPECT_EQ(window.lblCopyright.height, window.picCopyright.Height());
}

TEST_F(StartUpTest, TheSocketHasNoRemotePort) {
  fake.socket.SetRemotePort(5000);
  startUp.Form_Load();
  EXPECT_EQ(fake.socket.RemotePort(), 0);
}

TEST_F(StartUpTest, AsksTheSocketForNameAndAddress) {
  startUp.Form_Load();
  EXPECT_EQ(state.LocalHostName, u"fakehost");
  EXPECT_EQ(state.LocalAddress, u"192.0.2.1");
}

TEST_F(StartUpTest, WithoutAFileItStartsInEnglishAndMakesTheFile) {
  startUp.Form_Load();
  EXPECT_EQ(window.mnuFile.caption, u"File");
  EXPECT_TRUE(state.DateStamp);
  EXPECT_TRUE(state.TimeStamp);
  EXPECT_FALSE(state.AlwaysOnTop);
  EXPECT_FALSE(state.LogDialogue);
  EXPECT_EQ(state.Font.Name, u"Arial");
  EXPECT_EQ(fake.files.files[kIniFile], "[General]\r\nLanguage=0\r\n");
}

TEST_F(StartUpTest, StartsInTheLanguageKept) {
  Keep("[General]\nLanguage=1\n");
  startUp.Form_Load();
  EXPECT_TRUE(state.IsGreek);
  EXPECT_EQ(window.mnuFile.caption, u"Αρχείο");
  EXPECT_EQ(fake.help.helpFile, u"/verlume/VerlumeGR.hlp");
}

TEST_F(StartUpTest, AnEmptyNicknameIsTheHostName) {
  Keep("[General]\nNickname=\n");
  startUp.Form_Load();
  EXPECT_EQ(state.Nickname, u"fakehost");
}

TEST_F(StartUpTest, TheNicknameKeptIsShown) {
  Keep("[General]\nNickname=Άννα\n");
  startUp.Form_Load();
  EXPECT_EQ(state.Nickname, u"Άννα");
  EXPECT_EQ(window.lblLocalNickname.caption, u"Άννα");
}

TEST_F(StartUpTest, StartsTheClock) {
  startUp.Form_Load();
  EXPECT_TRUE(window.tmrTimer.running);
}

TEST_F(StartUpTest, AFailureIsReportedAndTheRestSkipped) {
  Keep("[General]\nLanguage=1\nDateStamp=maybe\nTimeStamp=False\nAlwaysOnTop=True\n");
  fake.dialogs.answers = {Answer::No};
  startUp.Form_Load();
  ASSERT_EQ(Titles(), (std::vector<std::u16string>{u"Verlume, 203.", u"Αρχείο ρυθμίσεων"}));
  EXPECT_TRUE(fake.dialogs.messages[0].text.starts_with(
      u"Παρουσιάσθηκε το σφάλμα με αριθμό 13 και περιγραφή «Type mismatch»."));
  EXPECT_TRUE(state.DateStamp);
  EXPECT_TRUE(state.TimeStamp);
  EXPECT_FALSE(state.AlwaysOnTop);
  EXPECT_EQ(state.Font.Name, u"Arial");
  EXPECT_EQ(window.lblLocalIP.caption, u"");
  EXPECT_FALSE(window.window.unloaded);
}

TEST_F(StartUpTest, AfterAFailureThereIsANicknameAndTheClockRuns) {
  Keep("[FontLocal]\nSize=big\n");
  fake.dialogs.answers = {Answer::No};
  startUp.Form_Load();
  EXPECT_EQ(state.Nickname, u"fakehost");
  EXPECT_EQ(window.lblLocalNickname.caption, u"fakehost");
  EXPECT_TRUE(window.tmrTimer.running);
}

TEST_F(StartUpTest, YesToAFailureEndsIt) {
  Keep("[FontLocal]\nSize=big\n");
  fake.dialogs.answers = {Answer::Yes};
  startUp.Form_Load();
  EXPECT_TRUE(window.window.unloaded);
}

TEST_F(StartUpTest, ALanguageThatCannotBeKeptIsReportedAndStartUpGoesOn) {
  fake.files.writesFail = FailureNumber::PermissionDenied;
  fake.dialogs.answers = {Answer::No};
  startUp.Form_Load();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 219."});
  EXPECT_EQ(window.lblLocalIP.caption, u"192.0.2.1");
}

class LongNamedSocket : public fake::FakeSocket {
 public:
  using FakeSocket::FakeSocket;
  std::u16string LocalHostName() const override { return std::u16string(40, u'h'); }
};

TEST_F(StartUpTest, ALongHostNameIsCutToANickname) {
  LongNamedSocket socket(network);
  Platform other = {window.frmMain,
                    fake.about.frmAbout,
                    fake.macros.frmMacros,
                    fake.people.frmPeople,
                    fake.verify.frmVerify,
                    fake.reach.frmReach,
                    socket,
                    socket.privacy,
                    fake.router,
                    fake.addresses,
                    fake.dialogs,
                    fake.commonDialog,
                    fake.files,
                    fake.clock,
                    fake.locale,
                    fake.application,
                    fake.help,
                    fake.tools,
                    fake.clipboard,
                    fake.links,
                    fake.attention};
  StartUp longNamed(state, other, errors, settings, language,
                    {[] {}, [] { return std::u16string(); }, [] {}});
  longNamed.Form_Load();
  EXPECT_EQ(state.LocalHostName.size(), 40u);
  EXPECT_EQ(state.Nickname, std::u16string(32, u'h'));
}

class PostLayoutTest : public StartUpTest {
 protected:
  PostLayoutTest() {
    fake.files.MakeFolder(u"/macros");
    fake.files.MakeFolder(u"/logs");
    state.MacrosFolder = u"/macros/";
    state.LogFolder = u"/logs/";
  }
  void LogTo(std::u16string_view folder) {
    state.LogFolder = folder;
    state.LogDialogue = window.mnuFileLogRecord.checked = true;
  }
};

TEST_F(PostLayoutTest, AppliesTheStyleAndGivesTheFocusToTheCommandPane) {
  startUp.freeSizer1_PostLayout();
  EXPECT_EQ(steps, std::vector<std::string>{"style"});
  EXPECT_EQ(window.rtbCommands.timesFocused, 1);
  EXPECT_TRUE(fake.dialogs.messages.empty());
}

TEST_F(PostLayoutTest, AMissingLogFolderDoesNotMatterWhileLoggingIsOff) {
  state.LogFolder = u"";
  startUp.freeSizer1_PostLayout();
  EXPECT_TRUE(fake.dialogs.messages.empty());
}

TEST_F(PostLayoutTest, AsksForAMissingLogFolder) {
  LogTo(u"/vanished/");
  chosenFolder = u"/logs/";
  fake.dialogs.answers = {Answer::Yes};
  startUp.freeSizer1_PostLayout();
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  const Message& question = fake.dialogs.messages[0];
  EXPECT_EQ(question.title, u"Dialogue logging");
  EXPECT_TRUE(question.text.starts_with(
      u"The application needs to know the folder that will hold the logs of your dialogues.\r\n\r\n"
      u"This message is being displayed because you have selected to record your dialogues, BUT "
      u"you either have not defined such a folder"));
  EXPECT_TRUE(question.text.ends_with(u"\r\n\r\nWould you like to define such a folder now?"));
  EXPECT_EQ(question.icon, MessageIcon::Question);
  EXPECT_EQ(question.buttons, MessageButtons::YesNo);
  EXPECT_EQ(question.defaultAnswer, Answer::Yes);
  EXPECT_EQ(logFolderChoices, 1);
  EXPECT_TRUE(state.LogDialogue);
  EXPECT_EQ(state.LogFolder, u"/logs/");
}

TEST_F(PostLayoutTest, TheLogFolderQuestionRepeatsUntilTheFolderExists) {
  LogTo(u"");
  fake.dialogs.answers = {Answer::Yes, Answer::Yes, Answer::No};
  startUp.freeSizer1_PostLayout();
  EXPECT_EQ(logFolderChoices, 2);
  EXPECT_EQ(fake.dialogs.messages.size(), 4u);
}

TEST_F(PostLayoutTest, NoToTheLogFolderSwitchesLoggingOff) {
  LogTo(u"/vanished/");
  fake.dialogs.answers = {Answer::No};
  startUp.freeSizer1_PostLayout();
  EXPECT_EQ(state.LogFolder, u"");
  EXPECT_FALSE(state.LogDialogue);
  EXPECT_FALSE(window.mnuFileLogRecord.checked);
  ASSERT_EQ(fake.dialogs.messages.size(), 2u);
  const Message& note = fake.dialogs.messages[1];
  EXPECT_EQ(note.text, u"Dialogue logging has been suspended.");
  EXPECT_EQ(note.title, u"Dialogue logging");
  EXPECT_EQ(note.icon, MessageIcon::Information);
  EXPECT_EQ(note.buttons, MessageButtons::Ok);
}

TEST_F(PostLayoutTest, AsksForAMissingMacrosFolderWhateverTheLogging) {
  state.MacrosFolder = u"";
  chosenFolder = u"/macros/";
  fake.dialogs.answers = {Answer::Yes};
  startUp.freeSizer1_PostLayout();
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Macros folder definition");
  EXPECT_EQ(fake.dialogs.messages[0].defaultAnswer, Answer::Yes);
  EXPECT_TRUE(fake.dialogs.messages[0].text.starts_with(
      u"The application needs to know the folder that will hold the macros you save and/or "
      u"recall.\r\n\r\n"));
  EXPECT_EQ(macrosFolderChoices, 1);
  EXPECT_EQ(state.MacrosFolder, u"/macros/");
}

TEST_F(PostLayoutTest, NoToTheMacrosFolderLeavesNone) {
  state.MacrosFolder = u"/vanished/";
  fake.dialogs.answers = {Answer::Yes, Answer::No};
  startUp.freeSizer1_PostLayout();
  EXPECT_EQ(macrosFolderChoices, 1);
  EXPECT_EQ(state.MacrosFolder, u"");
  ASSERT_EQ(fake.dialogs.messages.size(), 3u);
  EXPECT_EQ(fake.dialogs.messages[2].text, u"You won't be able to save and/or recall your macros.");
  EXPECT_EQ(fake.dialogs.messages[2].icon, MessageIcon::Information);
}

TEST_F(PostLayoutTest, AsksInGreek) {
  state.IsGreek = true;
  LogTo(u"");
  state.MacrosFolder = u"";
  fake.dialogs.answers = {Answer::No, Answer::No};
  startUp.freeSizer1_PostLayout();
  EXPECT_EQ(Titles(), (std::vector<std::u16string>{u"Καταγραφή διαλόγου", u"Καταγραφή διαλόγων",
                                                   u"Ορισμός φακέλλου μακροεντολών",
                                                   u"Ορισμός φακέλλου μακροεντολών"}));
  EXPECT_TRUE(fake.dialogs.messages[0].text.ends_with(
      u"ΑΛΛΑ είτε δεν έχετε ορίσει κάποιο φάκελλο, ή ο φάκελλος που έχετε ήδη ορίσει δεν έγινε "
      u"δυνατόν να εντοπισθεί από την εφαρμογή.\r\n\r\nΑν δεν ορίσετε τώρα έναν φάκελλο, δεν θα "
      u"μπορέσετε να καταγράψετε τους διαλόγους σας.\r\n\r\nΘέλετε να ορίσετε τώρα έναν "
      u"φάκελλο;"));
  EXPECT_EQ(fake.dialogs.messages[1].text, u"Η καταγραφή των διαλόγων σας ακυρώθηκε.");
  EXPECT_EQ(fake.dialogs.messages[3].text,
            u"Δεν θα μπορείτε να ανακαλέσετε ή/και να αποθηκεύσετε τις μακροεντολές σας.");
}

TEST_F(PostLayoutTest, NoFolderIsMade) {
  LogTo(u"/vanished/");
  state.MacrosFolder = u"/gone/";
  fake.dialogs.answers = {Answer::No, Answer::No};
  startUp.freeSizer1_PostLayout();
  EXPECT_FALSE(fake.files.IsFolder(u"/vanished"));
  EXPECT_FALSE(fake.files.IsFolder(u"/gone"));
}

TEST_F(PostLayoutTest, AFailureIsReported) {
  StartUp failing(state, platform, errors, settings, language,
                  {[] {}, [] { return std::u16string(); },
                   [] { throw RunTimeFailure(FailureNumber::DiskFull); }});
  state.Title = u"Verlume";
  fake.dialogs.answers = {Answer::No};
  failing.freeSizer1_PostLayout();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 211."});
}

}  // namespace
}  // namespace verlume
