// The actions behind the connection commands. Each reads AppState::CommandLine, reports its own
// failures, and ends by giving the focus back to the command pane. The menu entries run them with
// the bare command word.
#pragma once

#include "commands/dialogue.h"
#include "connection/connection_state.h"
#include "connection/wire_protocol.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"
#include "shell/status_panel.h"

namespace verlume {

class ConnectionActions {
 public:
  struct Collaborators {
    Settings& settings;
    Dialogue& dialogue;
    DialogueLog& log;
    StatusPanel& statusPanel;
    WireProtocol& wire;
  };

  ConnectionActions(AppState& state, Platform& platform, ErrorReport& errors,
                    Collaborators collaborators)
      : state_(state), platform_(platform), errors_(errors), with_(collaborators) {}

  void CallRemote();
  void WaitForCall();
  void CancelWaitOrCall();
  void CloseConnection();
  void RefreshLocalIP();
  void SetNickname();
  // Asks, unless Idle, whether the program may end, and sets AppState::ExitConfirmed.
  void ConfirmExit();

  void mnuCommCall_Click();
  void mnuCommWait_Click();
  void mnuCommCancel_Click();
  void mnuCommClose_Click();
  void mnuCommRefresh_Click();
  void mnuToolsNick_Click();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
};

}  // namespace verlume
