#include "shell/program/program.h"

#include <utility>

#include "connection/rule_texts.h"
#include "platform/char_code.h"
#include "shell/called_hosts.h"
#include "shell/dialogue_rule.h"
#include "shell/welcome_card.h"

namespace verlume {
namespace {

// Binds an event to a procedure. The procedures catch their own failures.
template <class Event, class Object, class Method>
void On(Event& event, Object& object, Method procedure) {
  event = [&object, procedure](auto&&... arguments) { (object.*procedure)(arguments...); };
}

}  // namespace

Program::Program(Platform& platform)
    : platform_(platform),
      errors_(
          state_, platform, [this] { EndChatAfterError(); },
          [this] { platform_.frmMain.window.Unload(); }),
      settings_(state_, platform.files),
      statusPanel_(platform, errors_),
      language_(state_, platform, errors_, settings_),
      help_(platform, errors_),
      view_(platform, errors_),
      windowBehaviour_(state_, platform, errors_, settings_),
      aboutBox_(state_, platform, errors_),
      log_(state_, platform, errors_, settings_),
      dialogueFiles_(state_, platform, errors_),
      macroStore_(state_, platform, errors_, settings_),
      dialogue_(state_, platform, errors_, settings_, log_),
      people_(state_, platform, errors_),
      wire_(state_, platform, errors_,
            {.dialogue = dialogue_,
             .log = log_,
             .statusPanel = statusPanel_,
             .onConversation = [this] { RememberAnswer(state_, platform_, settings_); },
             .mayBegin = [this](std::u16string_view name) { return peerGate_.MayBegin(name); },
             .onNickname = [this] { peerGate_.ShowLock(); }}),
      port_(state_, platform, errors_, settings_),
      reachList_(state_, platform, errors_),
      connection_(state_, platform, errors_,
                  {.settings = settings_,
                   .dialogue = dialogue_,
                   .log = log_,
                   .statusPanel = statusPanel_,
                   .wire = wire_,
                   .port = port_}),
      peerGate_(state_, platform, errors_, people_, wire_, [this] { connection_.HangUp(); }),
      resend_(state_, platform, wire_, dialogue_),
      privateMenu_(state_, platform, errors_, settings_),
      peopleList_(state_, platform, errors_, people_),
      verification_(state_, platform, errors_, people_),
      socketEvents_(state_, platform, errors_, wire_, log_),
      history_(state_, platform, errors_),
      completion_(state_, platform, errors_, settings_, macroStore_, history_),
      spelling_(state_, platform, errors_, settings_),
      textFormat_(state_, platform, errors_, settings_, dialogue_),
      find_(state_, platform, errors_),
      links_(state_, platform, errors_),
      dialogueMenu_(state_, platform, find_, links_),
      interpreter_(state_, platform, errors_,
                   {.dialogue = dialogue_,
                    .history = history_,
                    .textFormat = textFormat_,
                    .connection = connection_,
                    .wire = wire_}),
      macroStyle_(state_, platform, errors_),
      macroEditor_(state_, platform, errors_, macroStore_, macroStyle_),
      macroSaving_(state_, platform, errors_, macroStore_),
      alerts_(state_, platform, errors_),
      attentionSwitches_(state_, platform, errors_, settings_),
      startUp_(state_, platform, errors_, settings_, language_,
               {.resetConnection = [this] { ResetConnection(state_, platform_); },
                .buildProtocolMarker = BuildProtocolMarker,
                .applyCommandStyle = [this] { textFormat_.ApplyCommandStyle(); }}),
      shutDown_(
          state_, platform, errors_, [this] { connection_.ConfirmExit(); },
          [this] { ResetConnection(state_, platform_); }) {
  BindWindow();
  BindAbout();
  BindMacros();
  BindMenus();
  BindPanes();
  BindFindBar();
  BindFloating();
  BindSocket();
  BindAttention();
  BindPrivacy();
  BindReach();
  BindContextHelp(platform.frmMain);
  BindContextHelp(platform.frmPeople);
  BindContextHelp(platform.frmVerify);
  BindContextHelp(platform.frmReach);
}

Program::~Program() = default;

void Program::Start(const StartTask& task) {
  task_ = task;
  startUp_.Form_Load();
  privateMenu_.Start();
  attentionSwitches_.ShowState();
  ReadCalledHosts(state_, platform_, settings_);
  ShowWelcomeCard(state_, platform_);
  if (platform_.application.HasEnded()) return;
  people_.Start();
  spelling_.Start();
  platform_.frmMain.window.Show();
}

void Program::Do(const StartTask& task) {
  if (platform_.application.HasEnded()) return;
  switch (task.kind) {
    case StartTask::Kind::None:
      break;
    case StartTask::Kind::Wait:
      return connection_.WaitFromMenu(task.port);
    case StartTask::Kind::Call:
      return connection_.CallFromMenu({task.text, task.port, {}});
    case StartTask::Kind::OpenInvitation:
      return connection_.OpenInvitation(task.text);
  }
}

// Any error ends the chat: its log is closed, and the status line no longer shows it.
void Program::EndChatAfterError() {
  const ConnectionState left = StateOf(state_);
  ResetConnection(state_, platform_);
  if (left == ConnectionState::Connected)
    AddDialogueRule(state_, platform_, rule_texts::kConnectionLost);
  state_.LogOpen = false;
  if (left != ConnectionState::Idle) platform_.frmMain.lblStatus.SetCaption(u"");
}

void Program::BindWindow() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.window.onQueryUnload, shutDown_, &ShutDown::Form_QueryUnload);
  On(frmMain.window.onUnload, shutDown_, &ShutDown::Form_Unload);
  frmMain.freeSizer1.onPostLayout = [this] {
    startUp_.freeSizer1_PostLayout();
    Do(std::exchange(task_, {}));
  };
  frmMain.tmrTimer.onTimer = [this] {
    statusPanel_.tmrTimer_Timer();
    socketEvents_.tmrTimer_Timer();
    alerts_.tmrTimer_Timer();
    reachList_.Refresh();
  };
}

void Program::BindAbout() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuHelpAbout.onClick, aboutBox_, &AboutBox::mnuHelpAbout_Click);
  On(frmMain.lblCopyright.onMouseDown, aboutBox_, &AboutBox::lblCopyright_MouseDown);
  On(frmMain.picCopyright.onMouseDown, aboutBox_, &AboutBox::lblCopyright_MouseDown);
  const AboutWindow& frmAbout = platform_.frmAbout;
  On(frmAbout.cmdOK.onClick, aboutBox_, &AboutBox::cmdOK_Click);
  On(frmAbout.cmdSysInfo.onClick, aboutBox_, &AboutBox::cmdSysInfo_Click);
  BindContextHelp({&frmAbout.lblTitle, &frmAbout.lblVersion, &frmAbout.lblDescription,
                   &frmAbout.lblDisclaimer, &frmAbout.lblCredit, &frmAbout.picIcon, &frmAbout.cmdOK,
                   &frmAbout.cmdSysInfo});
}

void Program::BindMacros() {
  const MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuFileMacrosFolder.onClick, macroStore_, &MacroStore::ChooseMacrosFolder);
  On(frmMain.mnuToolsSaveMacro.onClick, macroSaving_, &MacroSaving::SaveCommandPaneAsMacro);
  On(frmMain.mnuToolsEditMacros.onClick, macroEditor_, &MacroEditor::OpenMacroEditor);

  const MacroWindow& frmMacros = platform_.frmMacros;
  On(frmMacros.window.onQueryUnload, macroEditor_, &MacroEditor::Form_QueryUnload);
  On(frmMacros.lstMacroNames.onClick, macroEditor_, &MacroEditor::lstMacroNames_Click);
  On(frmMacros.rtbMacroText.onGotFocus, macroEditor_, &MacroEditor::rtbMacroText_GotFocus);
  On(frmMacros.rtbMacroText.onKeyDown, macroEditor_, &MacroEditor::rtbMacroText_KeyDown);
  On(frmMacros.rtbMacroText.onKeyPress, macroStyle_, &MacroStyle::rtbMacroText_KeyPress);
  On(frmMacros.rtbMacroText.onSelChange, macroStyle_, &MacroStyle::rtbMacroText_SelChange);
  On(frmMacros.cmdAdd.onClick, macroEditor_, &MacroEditor::cmdAdd_Click);
  On(frmMacros.cmdEdit.onClick, macroEditor_, &MacroEditor::cmdEdit_Click);
  On(frmMacros.cmdSave.onClick, macroEditor_, &MacroEditor::cmdSave_Click);
  On(frmMacros.cmdSaveAs.onClick, macroEditor_, &MacroEditor::cmdSaveAs_Click);
  On(frmMacros.cmdCancel.onClick, macroEditor_, &MacroEditor::cmdCancel_Click);
  On(frmMacros.cmdDelete.onClick, macroEditor_, &MacroEditor::cmdDelete_Click);
  On(frmMacros.cmdRun.onClick, macroEditor_, &MacroEditor::cmdRun_Click);
  On(frmMacros.cmdClose.onClick, macroEditor_, &MacroEditor::cmdClose_Click);
  On(frmMacros.chkBold.onClick, macroStyle_, &MacroStyle::chkBold_Click);
  On(frmMacros.chkItalics.onClick, macroStyle_, &MacroStyle::chkItalics_Click);
  On(frmMacros.chkUnderlined.onClick, macroStyle_, &MacroStyle::chkUnderlined_Click);
  On(frmMacros.lblColour.onMouseDown, macroStyle_, &MacroStyle::lblColour_MouseDown);
  BindContextHelp({&frmMacros.chkBold, &frmMacros.chkItalics, &frmMacros.chkUnderlined,
                   &frmMacros.lblColour, &frmMacros.lstMacroNames, &frmMacros.cmdAdd,
                   &frmMacros.cmdEdit, &frmMacros.cmdSave, &frmMacros.cmdSaveAs,
                   &frmMacros.cmdCancel, &frmMacros.cmdDelete, &frmMacros.cmdRun,
                   &frmMacros.cmdClose});
}

void Program::BindMenus() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuFileLogFolder.onClick, log_, &DialogueLog::mnuFileLogFolder_Click);
  On(frmMain.mnuFileLogRecord.onClick, log_, &DialogueLog::mnuFileLogRecord_Click);
  On(frmMain.mnuFileLogOpen.onClick, dialogueFiles_, &DialogueFiles::mnuFileLogOpen_Click);
  On(frmMain.mnuFileLogSaveAs.onClick, dialogueFiles_, &DialogueFiles::mnuFileLogSaveAs_Click);
  On(frmMain.mnuFileExit.onClick, shutDown_, &ShutDown::mnuFileExit_Click);

  On(frmMain.mnuCommWait.onClick, connection_, &ConnectionActions::mnuCommWait_Click);
  On(frmMain.mnuCommCall.onClick, connection_, &ConnectionActions::mnuCommCall_Click);
  On(frmMain.mnuCommCancel.onClick, connection_, &ConnectionActions::mnuCommCancel_Click);
  On(frmMain.mnuCommClose.onClick, connection_, &ConnectionActions::mnuCommClose_Click);
  On(frmMain.mnuCommRefresh.onClick, connection_, &ConnectionActions::mnuCommRefresh_Click);
  On(frmMain.mnuCommCallAgain.onChoose, connection_, &ConnectionActions::mnuCommCallAgain_Choose);
  On(frmMain.mnuCommCallAgain.onLast, connection_, &ConnectionActions::mnuCommCallAgain_Last);

  On(frmMain.mnuFormatFontBold.onClick, textFormat_, &TextFormat::mnuFormatFontBold_Click);
  On(frmMain.mnuFormatFontItalics.onClick, textFormat_, &TextFormat::mnuFormatFontItalics_Click);
  On(frmMain.mnuFormatFontUnderline.onClick, textFormat_,
     &TextFormat::mnuFormatFontUnderline_Click);
  On(frmMain.mnuFormatFontSize.onClick, textFormat_, &TextFormat::mnuFormatFontSize_Click);
  On(frmMain.mnuFormatFontColor.onClick, textFormat_, &TextFormat::mnuFormatFontColor_Click);
  On(frmMain.mnuFormatFontSettings.onClick, textFormat_, &TextFormat::mnuFormatFontSettings_Click);
  On(frmMain.mnuFormatBackcolorCommands.onClick, textFormat_,
     &TextFormat::mnuFormatBackcolorCommands_Click);
  On(frmMain.mnuFormatBackcolorDialogue.onClick, textFormat_,
     &TextFormat::mnuFormatBackcolorDialogue_Click);

  On(frmMain.mnuToolsNick.onClick, connection_, &ConnectionActions::mnuToolsNick_Click);
  On(frmMain.mnuToolsFind.onClick, find_, &FindInDialogue::mnuToolsFind_Click);
  On(frmMain.mnuToolsCompletions.onClick, completion_,
     &CommandCompletion::mnuToolsCompletions_Click);
  On(frmMain.mnuToolsClearDialogue.onClick, dialogue_, &Dialogue::mnuToolsClearDialogue_Click);
  On(frmMain.mnuToolsClearCommands.onClick, history_, &CommandHistory::mnuToolsClearCommands_Click);
  On(frmMain.mnuToolsClearHistory.onClick, history_, &CommandHistory::mnuToolsClearHistory_Click);
  On(frmMain.mnuToolsDate.onClick, dialogue_, &Dialogue::mnuToolsDate_Click);
  On(frmMain.mnuToolsTime.onClick, dialogue_, &Dialogue::mnuToolsTime_Click);
  On(frmMain.mnuToolsAlwaysOnTop.onClick, windowBehaviour_,
     &WindowBehaviour::mnuToolsAlwaysOnTop_Click);
  On(frmMain.mnuToolsLanguageEnglish.onClick, language_, &Language::mnuToolsLanguageEnglish_Click);
  On(frmMain.mnuToolsLanguageGreek.onClick, language_, &Language::mnuToolsLanguageGreek_Click);
  On(frmMain.mnuToolsCheckSpelling.onClick, spelling_, &SpellCheck::mnuToolsCheckSpelling_Click);

  On(frmMain.mnuViewStatusPanel.onClick, view_, &View::mnuViewStatusPanel_Click);
  On(frmMain.mnuViewZoomIn.onClick, view_, &View::mnuViewZoomIn_Click);
  On(frmMain.mnuViewZoomOut.onClick, view_, &View::mnuViewZoomOut_Click);
  On(frmMain.mnuViewZoomReset.onClick, view_, &View::mnuViewZoomReset_Click);
  On(frmMain.rtbData.onZoom, view_, &View::ZoomBy);
  On(frmMain.rtbCommands.onZoom, view_, &View::ZoomBy);
  view_.ShowState();

  On(frmMain.mnuHelpDetailed.onClick, help_, &Help::mnuHelpDetailed_Click);
}

void Program::BindPanes() {
  MainWindow& frmMain = platform_.frmMain;
  NewLines& newLines = dialogue_.WhatIsNew();
  On(frmMain.rtbData.onEndShown, newLines, &NewLines::rtbData_EndShown);
  On(frmMain.newLines.cmdNewLines.onClick, newLines, &NewLines::cmdNewLines_Click);
  On(frmMain.window.onActivated, newLines, &NewLines::window_Activated);
  On(frmMain.rtbData.onNearlyFull, dialogue_, &Dialogue::rtbData_NearlyFull);
  frmMain.rtbData.onChange = [this] { ShowWelcomeCard(state_, platform_); };
  On(frmMain.rtbData.onLoadProgress, dialogueFiles_, &DialogueFiles::rtbData_LoadProgress);
  On(frmMain.rtbData.onLink, links_, &DialogueLinks::rtbData_Link);
  frmMain.rtbData.onContextMenu = [this](std::size_t position) {
    return dialogueMenu_.rtbData_ContextMenu(position);
  };
  frmMain.rtbCommands.onKeyPress = [this](int& charCode) {
    dialogueMenu_.rtbCommands_KeyPress(charCode);
    interpreter_.rtbCommands_KeyPress(charCode);
  };
  On(frmMain.cmdSend.onClick, interpreter_, &CommandInterpreter::cmdSend_Click);
  frmMain.rtbCommands.onKeyDown = [this](int& keyCode, int shift) {
    dialogue_.WhatIsNew().rtbCommands_KeyDown(keyCode, shift);
    completion_.rtbCommands_KeyDown(keyCode, shift);
    if (keyCode != char_code::kSwallowed) history_.rtbCommands_KeyDown(keyCode, shift);
  };
  On(frmMain.spelling.onAddWord, spelling_, &SpellCheck::AddWord);
  On(frmMain.rtbCommands.onChange, completion_, &CommandCompletion::rtbCommands_Change);
  On(frmMain.rtbCommands.onGotFocus, completion_, &CommandCompletion::rtbCommands_GotFocus);
  On(frmMain.rtbCommands.onLostFocus, completion_, &CommandCompletion::rtbCommands_LostFocus);
  On(frmMain.completionList.lstCompletions.onClick, completion_,
     &CommandCompletion::lstCompletions_Click);
  On(frmMain.rtbCommands.onSelChange, textFormat_, &TextFormat::rtbCommands_SelChange);
  On(frmMain.chkBold.onClick, textFormat_, &TextFormat::chkBold_Click);
  On(frmMain.chkItalics.onClick, textFormat_, &TextFormat::chkItalics_Click);
  On(frmMain.chkUnderline.onClick, textFormat_, &TextFormat::chkUnderline_Click);
  On(frmMain.lblColor.onMouseDown, textFormat_, &TextFormat::lblColor_MouseDown);
}

void Program::BindFindBar() {
  FindBar& bar = platform_.frmMain.findBar;
  On(bar.txtFind.onChange, find_, &FindInDialogue::txtFind_Change);
  On(bar.cmdFindPrevious.onClick, find_, &FindInDialogue::cmdFindPrevious_Click);
  On(bar.cmdFindNext.onClick, find_, &FindInDialogue::cmdFindNext_Click);
  On(bar.cmdFindClose.onClick, find_, &FindInDialogue::cmdFindClose_Click);
  On(platform_.frmMain.rtbData.onLinesRemoved, find_, &FindInDialogue::rtbData_LinesRemoved);
}

void Program::BindFloating() {
  const MainWindow& frmMain = platform_.frmMain;
  const WelcomeCard& card = frmMain.welcomeCard;
  const auto click = [](MenuEntry& entry) { return [&entry] { entry.Click(); }; };
  card.cmdCardWait.onClick = click(frmMain.mnuCommWait);
  card.cmdCardCall.onClick = click(frmMain.mnuCommCall);
  card.cmdCardHelp.onClick = click(frmMain.mnuHelpDetailed);
  On(frmMain.againBar.cmdAgain.onClick, connection_, &ConnectionActions::cmdAgain_Click);
  On(frmMain.againBar.cmdAgainClose.onClick, connection_, &ConnectionActions::cmdAgainClose_Click);
  const ResendBar& resend = frmMain.resendBar;
  On(resend.cmdResend.onClick, resend_, &Resend::cmdResend_Click);
  On(resend.cmdResendDrop.onClick, resend_, &Resend::cmdResendDrop_Click);
  On(resend.cmdResendClose.onClick, resend_, &Resend::cmdResendClose_Click);
}

void Program::BindSocket() {
  Socket& sckControl = platform_.sckControl;
  On(sckControl.onConnectionRequest, socketEvents_, &SocketEvents::sckControl_ConnectionRequest);
  On(sckControl.onConnect, socketEvents_, &SocketEvents::sckControl_Connect);
  On(sckControl.onDataArrival, socketEvents_, &SocketEvents::sckControl_DataArrival);
  // A peer that sends faster than the dialogue pane shows is slowed down.
  On(platform_.frmMain.rtbData.onInsertionStarted, sckControl, &Socket::PauseArrivals);
  platform_.frmMain.rtbData.onInsertionFinished = [this] {
    if (!state_.PeerStops) platform_.sckControl.ResumeArrivals();
  };
  On(sckControl.onAcknowledged, wire_, &WireProtocol::ShowLinesWaiting);
  On(sckControl.onUndelivered, wire_, &WireProtocol::OnUndelivered);
  On(sckControl.onClose, socketEvents_, &SocketEvents::sckControl_Close);
}

void Program::BindPrivacy() {
  On(platform_.privacy.onState, peerGate_, &PeerGate::privacy_State);
  On(platform_.privacy.onPeerKnown, peerGate_, &PeerGate::privacy_PeerKnown);
  people_.onChange = [this] {
    peerGate_.ShowLock();
    peopleList_.Refresh();
  };
  language_.onApplied = [this] {
    peerGate_.ShowLock();
    peerGate_.ShowBar();
    port_.ShowState();
    reachList_.Refresh();
  };
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.keyBar.cmdKeyGoOn.onClick, peerGate_, &PeerGate::cmdKeyGoOn_Click);
  On(frmMain.keyBar.cmdKeyHangUp.onClick, peerGate_, &PeerGate::cmdKeyHangUp_Click);
  On(frmMain.mnuCommInvite.onClick, connection_, &ConnectionActions::mnuCommInvite_Click);
  const PrivateMenu& menu = frmMain.privateMenu;
  On(menu.mnuPrivateWhenPossible.onClick, privateMenu_,
     &PrivateMenuChoice::mnuPrivateWhenPossible_Click);
  On(menu.mnuPrivateOnly.onClick, privateMenu_, &PrivateMenuChoice::mnuPrivateOnly_Click);
  On(menu.mnuPrivateNever.onClick, privateMenu_, &PrivateMenuChoice::mnuPrivateNever_Click);
  BindPeople();
}

void Program::BindPeople() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuCommPeople.onClick, peopleList_, &PeopleList::mnuCommPeople_Click);
  const PeopleWindow& frmPeople = platform_.frmPeople;
  On(frmPeople.lstPeople.onClick, peopleList_, &PeopleList::lstPeople_Click);
  On(frmPeople.txtPeopleName.onChange, peopleList_, &PeopleList::txtPeopleName_Change);
  On(frmPeople.chkPeopleVerified.onClick, peopleList_, &PeopleList::chkPeopleVerified_Click);
  On(frmPeople.cmdPeopleForget.onClick, peopleList_, &PeopleList::cmdPeopleForget_Click);
  On(frmPeople.cmdPeopleClose.onClick, peopleList_, &PeopleList::cmdPeopleClose_Click);

  On(frmMain.mnuCommVerify.onClick, verification_, &Verification::mnuCommVerify_Click);
  On(frmMain.lblLock.onMouseDown, verification_, &Verification::lblLock_MouseDown);
  const VerifyWindow& frmVerify = platform_.frmVerify;
  On(frmVerify.cmdVerifyCopy.onClick, verification_, &Verification::cmdVerifyCopy_Click);
  On(frmVerify.cmdVerifyMatch.onClick, verification_, &Verification::cmdVerifyMatch_Click);
  On(frmVerify.cmdVerifyClose.onClick, verification_, &Verification::cmdVerifyClose_Click);
}

void Program::BindReach() {
  platform_.router.onReport = [this] {
    port_.router_Report();
    reachList_.Refresh();
  };
  platform_.network.onChange = [this] {
    port_.network_Change();
    reachList_.Refresh();
  };
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.routerBar.cmdRouterYes.onClick, port_, &PortKeeper::cmdRouterYes_Click);
  On(frmMain.routerBar.cmdRouterNo.onClick, port_, &PortKeeper::cmdRouterNo_Click);
  On(frmMain.routerBar.cmdRouterClose.onClick, port_, &PortKeeper::cmdRouterClose_Click);
  On(frmMain.mnuCommAskRouter.onClick, port_, &PortKeeper::mnuCommAskRouter_Click);
  On(frmMain.mnuCommReach.onClick, reachList_, &ReachList::mnuCommReach_Click);
  const ReachWindow& frmReach = platform_.frmReach;
  On(frmReach.cmdReachAgain.onClick, reachList_, &ReachList::cmdReachAgain_Click);
  On(frmReach.cmdReachCopyAddress.onClick, reachList_, &ReachList::cmdReachCopyAddress_Click);
  On(frmReach.cmdReachCopyInvitation.onClick, reachList_, &ReachList::cmdReachCopyInvitation_Click);
  On(frmReach.cmdReachClose.onClick, reachList_, &ReachList::cmdReachClose_Click);
}

void Program::BindAttention() {
  On(platform_.attention.onUserBack, alerts_, &Alerts::attention_UserBack);
  On(socketEvents_.onIncomingCall, alerts_, &Alerts::OnIncomingCall);
  dialogue_.onRemoteLine = [this](Sender sender, std::u16string_view text) {
    alerts_.OnRemoteLine(text, sender == Sender::RemoteAction);
  };
  const AttentionMenu& menu = platform_.frmMain.attentionMenu;
  On(menu.mnuAttentionLines.onClick, attentionSwitches_,
     &AttentionSwitches::mnuAttentionLines_Click);
  On(menu.mnuAttentionText.onClick, attentionSwitches_, &AttentionSwitches::mnuAttentionText_Click);
  On(menu.mnuAttentionSound.onClick, attentionSwitches_,
     &AttentionSwitches::mnuAttentionSound_Click);
  On(menu.mnuAttentionCount.onClick, attentionSwitches_,
     &AttentionSwitches::mnuAttentionCount_Click);
}

}  // namespace verlume
