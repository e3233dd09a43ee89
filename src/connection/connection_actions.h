// The actions behind the connection commands. Each reads AppState::CommandLine, reports its own
// failures, and ends by giving the focus back to the command pane. The menu entries run them with
// the bare command word.
//
// Their boxes let socket events through, so a state that was asked about may be gone when the
// answer comes. An answer counts only for the state it was given in: when another one has taken its
// place, that one is asked about, and nothing is done that the user has not agreed to.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "commands/dialogue/dialogue.h"
#include "connection/connection_state.h"
#include "connection/wire_protocol.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"
#include "shell/status_panel.h"
#include "shell/text_pair.h"

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
  // What an action that ends whatever there is says of each state before it does.
  struct LeaveTexts {
    const TextPair& connected;  // a refusal; %1 address, %2 port
    const TextPair& waiting;    // a question; %1 local port
    const TextPair& waitingTitle;
    const TextPair& calling;  // a question; %1 remote port
    const TextPair& title;    // of the refusal and of the question about a call
  };

  // Runs an action: its failures are reported, the focus goes back to the command pane.
  void Run(Procedure procedure, const std::function<void()>& action);
  void RunFromMenu(std::u16string_view commandWord, void (ConnectionActions::*action)());

  // Refuses while Connected, asks while Waiting or Calling. The state that may be left, which is
  // the one in force; none when it may not.
  std::optional<ConnectionState> AskToLeaveState(const LeaveTexts& texts);
  // Whether the state in force may be left after further boxes: yes while it is the agreed one;
  // else the user is asked again.
  bool MayStillLeaveState(const LeaveTexts& texts, ConnectionState agreed);
  // No is the default.
  bool UserAgrees(const std::u16string& text, const TextPair& title);

  // "" when the user gave up.
  std::u16string AskHost();
  // None when the user gave up.
  std::optional<std::int32_t> AskRemotePort();
  // False when the user gave up.
  bool MendLocalPort(std::u16string& portText);
  std::u16string AskNickname(std::u16string candidate);
  std::u16string ExitQuestion(ConnectionState asked) const;

  void SetStatus(std::u16string_view text);
  // Leaves Connected: status line and log say that the user did it, and the log is closed.
  void RecordClosedByUser();
  // What the command leaves in the dialogue pane; empties the command pane.
  void WriteOutgoingText();
  std::u16string_view In(const TextPair& text) const { return text.In(state_.IsGreek); }

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
};

}  // namespace verlume
