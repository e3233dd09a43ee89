// The composition root: creates all objects of the logic, passes them to each other, and binds
// every event of the platform to its procedure.
#pragma once

#include "commands/completion.h"
#include "commands/dialogue/dialogue.h"
#include "commands/dialogue_links.h"
#include "commands/dialogue_menu.h"
#include "commands/find_in_dialogue.h"
#include "commands/history.h"
#include "commands/interpreter.h"
#include "commands/spell_check.h"
#include "commands/text_format.h"
#include "connection/connection_actions.h"
#include "connection/connection_state.h"
#include "connection/peer_gate.h"
#include "connection/private_menu.h"
#include "connection/resend.h"
#include "connection/socket_events.h"
#include "connection/wire_protocol.h"
#include "macros/macro_editor.h"
#include "macros/macro_saving.h"
#include "macros/macro_style.h"
#include "macros/store/macro_store.h"
#include "people/people.h"
#include "people/people_list.h"
#include "people/verification.h"
#include "platform/platform.h"
#include "reach/port_keeper.h"
#include "reach/reach_list.h"
#include "records/dialogue_files.h"
#include "records/dialogue_log.h"
#include "shell/about_box.h"
#include "shell/alerts.h"
#include "shell/app_state.h"
#include "shell/attention_menu.h"
#include "shell/error_report.h"
#include "shell/help.h"
#include "shell/language.h"
#include "shell/program/shut_down.h"
#include "shell/program/start_up.h"
#include "shell/settings.h"
#include "shell/start/start_task.h"
#include "shell/status_panel.h"
#include "shell/view.h"
#include "shell/window_behaviour.h"

namespace verlume {

class Program {
 public:
  explicit Program(Platform& platform);
  ~Program();
  // The platform's events hold references to this object.
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Loads the main window, shows it and starts the clock; from then on the program waits for
  // events. The task is done when the window has been laid out.
  void Start(const StartTask& task = {});

  // Does at once what another start of the program was asked to do.
  void Do(const StartTask& task);

  const AppState& State() const { return state_; }

 private:
  void EndChatAfterError();
  void BindWindow();
  void BindAbout();
  void BindMacros();
  void BindMenus();
  void BindPanes();
  void BindFindBar();
  void BindFloating();
  void BindSocket();
  void BindAttention();
  void BindPrivacy();
  void BindPeople();
  void BindReach();

  Platform& platform_;
  AppState state_;
  ErrorReport errors_;
  Settings settings_;
  StatusPanel statusPanel_;
  Language language_;
  Help help_;
  View view_;
  WindowBehaviour windowBehaviour_;
  AboutBox aboutBox_;
  DialogueLog log_;
  DialogueFiles dialogueFiles_;
  MacroStore macroStore_;
  Dialogue dialogue_;
  People people_;
  WireProtocol wire_;
  PortKeeper port_;
  ReachList reachList_;
  ConnectionActions connection_;
  PeerGate peerGate_;
  Resend resend_;
  PrivateMenuChoice privateMenu_;
  PeopleList peopleList_;
  Verification verification_;
  SocketEvents socketEvents_;
  CommandHistory history_;
  CommandCompletion completion_;
  SpellCheck spelling_;
  TextFormat textFormat_;
  FindInDialogue find_;
  DialogueLinks links_;
  DialogueMenu dialogueMenu_;
  CommandInterpreter interpreter_;
  MacroStyle macroStyle_;
  MacroEditor macroEditor_;
  MacroSaving macroSaving_;
  Alerts alerts_;
  AttentionSwitches attentionSwitches_;
  StartUp startUp_;
  ShutDown shutDown_;
  StartTask task_;  // until it is done
};

}  // namespace verlume
