#include "shell/program/program.h"

#include <utility>

#include "connection/rule_texts.h"
#include "shell/called_hosts.h"
#include "shell/dialogue_rule.h"
#include "shell/welcome_card.h"

namespace verlume {

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

}  // namespace verlume
