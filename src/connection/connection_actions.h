// The actions of the connection commands. Each reports its own failures, and finally gives the
// focus back to the command pane. `commandLine` is the line as it was typed; the menu entries run
// the actions with the bare command word. An action empties the command pane; chosen from a menu,
// it leaves there what was half typed, but for Cancel.
//
// Socket events still happen while their boxes are open, so the state may change before the user
// answers. An answer counts only for the state in which the question was asked. If the state has
// changed, the user is asked about the new one: nothing is done that the user has not agreed to.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "commands/dialogue/dialogue.h"
#include "connection/connection_state.h"
#include "connection/wire_protocol.h"
#include "people/invitation.h"
#include "platform/platform.h"
#include "reach/port_keeper.h"
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
    PortKeeper& port;
  };

  ConnectionActions(AppState& state, Platform& platform, ErrorReport& errors,
                    Collaborators collaborators)
      : state_(state), platform_(platform), errors_(errors), with_(collaborators) {}

  void CallRemote(std::u16string_view commandLine);
  void WaitForCall(std::u16string_view commandLine);
  void CancelWaitOrCall();
  void CloseConnection();
  void RefreshLocalIP();
  void SetNickname(std::u16string_view commandLine);
  // Ends the connection as the user's close does, at any stage; what is typed stays.
  void HangUp();
  // Whether the line is not said to a peer, but calls by the invitation that it is, or tries to be.
  bool IsInvitationToCall(std::u16string_view line) const;
  // An invitation from outside the program: asks before it calls. Does nothing if the text does not
  // look like one.
  void OpenInvitation(std::u16string_view text);
  // Run an action as if the user had typed the whole line. What is half typed stays.
  void CallFromMenu(const CalledHost& called);
  void WaitFromMenu(std::int32_t port);
  // Asks, unless Idle, whether the program may end, and sets AppState::ExitConfirmed.
  void ConfirmExit();

  void mnuCommCall_Click();
  void mnuCommWait_Click();
  void mnuCommCancel_Click();
  void mnuCommClose_Click();
  void mnuCommRefresh_Click();
  void mnuToolsNick_Click();
  // Copies an invitation to this program, while it waits.
  void mnuCommInvite_Click();
  void mnuCommCallAgain_Choose(std::size_t index);
  void mnuCommCallAgain_Last();
  // Calls the peer of the last conversation again, or waits again on the port of it.
  void cmdAgain_Click();
  void cmdAgainClose_Click();

 private:
  // The boxes that an action shows before it ends the current state.
  struct LeaveTexts {
    const TextPair& connected;  // a refusal; %1 address, %2 port
    const TextPair& waiting;    // a question; %1 local port
    const TextPair& waitingTitle;
    const TextPair& calling;  // a question; %1 remote port
    const TextPair& title;    // of the refusal and of the question about a call
  };

  // Runs an action, reports its failures, and gives the focus back to the command pane.
  void Run(Procedure procedure, const std::function<void()>& action);
  // Notes in AppState what the user has chosen from a menu, as if the word had been typed.
  void RecordCommand(std::u16string_view commandWord);
  // Runs an action that the user has chosen from a menu. The user did not type its line, so what is
  // half typed in the command pane stays there.
  void RunKeepingDraft(Procedure procedure, std::u16string_view commandWord,
                       const std::function<void()>& action);

  // Refuses while Connected, asks while Waiting or Calling. Returns the current state if it may be
  // left, else none.
  std::optional<ConnectionState> AskToLeaveState(const LeaveTexts& texts);
  // Called after further boxes. True while the state is still the agreed one; otherwise asks again.
  bool MayStillLeaveState(const LeaveTexts& texts, ConnectionState agreed);
  // No is the default.
  bool UserAgrees(const std::u16string& text, const TextPair& title);

  // Where to call, and who has to answer there.
  struct Callee {
    std::u16string host;
    std::int32_t port = 0;
    std::optional<KeyFingerprint> key;
  };
  // Asks for what the line does not say. None when the user gave up, or it is a wrong invitation.
  std::optional<Callee> CalleeIn(std::u16string_view commandLine);
  void TellOfWrongInvitation();
  enum class MustBePrivate { Yes, No };
  // Prepares the own key. False if there is none to show, the conversation has to be private, and
  // the user has been told.
  bool PrepareKey(MustBePrivate must);
  // Says quietly that the conversation will not be private, if there is no key to show.
  void TellOfKey();
  // "" when the user gave up.
  std::u16string AskHost();
  // None when the user gave up.
  std::optional<std::int32_t> AskRemotePort();
  // Asks until the text is a port. False when the user gave up.
  bool CorrectLocalPort(std::u16string& portText);
  // On failure it notes the reason before it throws.
  void Listen(std::int32_t port);
  std::u16string AskNickname(std::u16string candidate);
  // Asks whether to choose another nickname if the wire cannot carry this one; else false.
  bool WantsAnother(const std::u16string& nickname);
  std::u16string ExitQuestion(ConnectionState asked) const;

  void SetStatus(std::u16string_view text);
  // Says in the status line and the log that the user closed the connection, and closes the log.
  void RecordClosedByUser();
  // Writes the command's line, which is usually empty, into the dialogue pane, and empties the
  // command pane.
  void WriteOutgoingText();
  std::u16string_view In(const TextPair& text) const { return text.In(state_.IsGreek); }

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
  bool hasAskedAboutKey_ = false;
};

}  // namespace verlume
