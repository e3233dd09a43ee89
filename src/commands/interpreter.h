// The interpreter behind the Enter key: decides what a typed line is, and does it.
#pragma once

#include "commands/dialogue.h"
#include "commands/history.h"
#include "commands/text_format.h"
#include "connection/connection_actions.h"
#include "connection/wire_protocol.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class CommandInterpreter {
 public:
  struct Collaborators {
    Dialogue& dialogue;
    CommandHistory& history;
    TextFormat& textFormat;
    ConnectionActions& connection;
    WireProtocol& wire;
  };

  CommandInterpreter(AppState& state, Platform& platform, ErrorReport& errors,
                     Collaborators collaborators)
      : state_(state), platform_(platform), errors_(errors), with_(collaborators) {}

  // A character key in the command pane; Enter (13) runs the line.
  void rtbCommands_KeyPress(int& charCode);

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
};

}  // namespace verlume
