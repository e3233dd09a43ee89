#include "shell/program/start_up.h"

#include <utility>

#include "shell/folder_texts.h"
#include "shell/folders.h"
#include "shell/nickname.h"
#include "shell/settings_reader.h"
#include "shell/settings_rescue.h"

namespace verlume {

StartUp::StartUp(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings,
                 Language& language, Steps steps)
    : state_(state),
      platform_(platform),
      errors_(errors),
      settings_(settings),
      language_(language),
      steps_(std::move(steps)) {}

void StartUp::Form_Load() {
  SettingsTrouble trouble = SettingsTrouble::None;
  errors_.Guard(Procedure::Form_Load, [this, &trouble] {
    state_.IsGreek = false;
    SetPaths();
    state_.ExitConfirmed = false;
    steps_.resetConnection();
    state_.ProtocolMarker = steps_.buildProtocolMarker();
    SetInitialValues();
    ClearWindow();
    SetSettingDefaults(state_, platform_.frmMain);
    ReadLanguage(state_, settings_);
    trouble = SecureSettingsFile(state_, platform_.files, settings_,
                                 [this] { errors_.LogException(Procedure::Form_Load); });
    language_.ApplyLanguage();
    if (platform_.application.HasEnded()) return;
    ReadSettings(state_, platform_.frmMain, settings_);
    state_.LocalHostName = platform_.sckControl.LocalHostName();
    state_.LocalAddress = platform_.sckControl.LocalIP();
    platform_.frmMain.lblLocalIP.SetCaption(state_.LocalAddress);
  });
  if (platform_.application.HasEnded()) return;
  // Also after a failure: a nickname is never empty, and the clock runs from here on.
  SetNickname();
  platform_.frmMain.tmrTimer.Start();
  if (trouble != SettingsTrouble::None) {
    platform_.dialogs.ShowMessage(SettingsTroubleNote(trouble, state_));
  }
}

void StartUp::SetPaths() {
  const auto inFolder = [this](std::u16string_view folder, std::u16string_view name) {
    return WithTrailingSeparator(folder, platform_.files.Separator()).append(name);
  };
  state_.IniFile = inFolder(platform_.application.SettingsFolder(), u"Verlume.ini");
  const std::u16string helpFolder = platform_.application.HelpFolder();
  state_.HelpFileGreek = inFolder(helpFolder, u"VerlumeGR.hlp");
  state_.HelpFileEnglish = inFolder(helpFolder, u"VerlumeUK.hlp");
}

void StartUp::SetInitialValues() {
  state_.ForeignText = false;
  state_.RemoteMessage = false;
  state_.History.fill(u"");
  state_.History[0] = u"0";
  state_.HistoryUp = 1;
  state_.HistoryDown = -1;
  state_.LogFolder.clear();
  state_.LogFileStem.clear();
  state_.LogFile.clear();
  state_.MacrosFolder.clear();
  state_.MacroToRun.clear();
  state_.LogOpen = false;
}

void StartUp::ClearWindow() {
  const MainWindow& frmMain = platform_.frmMain;
  frmMain.lblCopyright.SetHeight(frmMain.picCopyright.Height());
  for (Label* label : {&frmMain.lblStatus, &frmMain.lblWaiting, &frmMain.lblCurrentDateTime,
                       &frmMain.lblChatStartDateTime, &frmMain.lblLocalIP, &frmMain.lblLocalPort,
                       &frmMain.lblRemoteIP, &frmMain.lblRemotePort, &frmMain.lblChatDuration,
                       &frmMain.lblBytesSent, &frmMain.lblBytesReceived, &frmMain.lblColor,
                       &frmMain.lblLocalNickname, &frmMain.lblRemoteNickname, &frmMain.lblHint}) {
    label->SetCaption(u"");
  }
  platform_.sckControl.SetRemotePort(0);
  for (RichTextBox* pane : {&frmMain.rtbData, &frmMain.rtbCommands}) {
    pane->SetText(u"");
    pane->SetTag(u"");
  }
  frmMain.rtbCommands.Select(frmMain.rtbCommands.TextLength(), 0);
}

void StartUp::SetNickname() {
  if (state_.Nickname.empty()) {
    state_.Nickname = platform_.sckControl.LocalHostName().substr(0, kNicknameLimit);
  }
  platform_.frmMain.lblLocalNickname.SetCaption(ShowableNickname(state_.Nickname));
}

void StartUp::freeSizer1_PostLayout() {
  errors_.Guard(Procedure::freeSizer1_PostLayout, [this] {
    steps_.applyCommandStyle();
    if (platform_.application.HasEnded()) return;
    platform_.frmMain.rtbCommands.SetFocus();
    CheckLogFolder();
    CheckMacrosFolder();
  });
}

void StartUp::CheckLogFolder() {
  const MainWindow& frmMain = platform_.frmMain;
  while (state_.LogDialogue && !FolderExists(platform_.files, state_.LogFolder)) {
    if (AsksForFolder(kLogFolderTexts)) {
      frmMain.mnuFileLogFolder.Click();
      continue;
    }
    state_.LogFolder.clear();
    frmMain.mnuFileLogRecord.Click();
    return TellAfterNo(kLogFolderTexts);
  }
}

void StartUp::CheckMacrosFolder() {
  while (!FolderExists(platform_.files, state_.MacrosFolder)) {
    if (AsksForFolder(kMacrosFolderTexts)) {
      platform_.frmMain.mnuFileMacrosFolder.Click();
      continue;
    }
    state_.MacrosFolder.clear();
    return TellAfterNo(kMacrosFolderTexts);
  }
}

bool StartUp::AsksForFolder(const FolderTexts& texts) {
  const Message question =
      Question(texts.question.In(state_.IsGreek), texts.title.In(state_.IsGreek), Answer::Yes);
  return platform_.dialogs.ShowMessage(question) == Answer::Yes;
}

void StartUp::TellAfterNo(const FolderTexts& texts) {
  platform_.dialogs.ShowMessage(
      Note(texts.note.In(state_.IsGreek), texts.noteTitle.In(state_.IsGreek)));
}

}  // namespace verlume
