// The interpreter behind the Enter key: decides what a typed line is, and does it.
#pragma once

#include <string_view>

#include "commands/command_table.h"
#include "commands/dialogue/dialogue.h"
#include "commands/history.h"
#include "commands/placeholders.h"
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
  // Runs the line.
  void cmdSend_Click();

 private:
  void RunTypedLine();
  // Whether the line is said to the peer while the user is asked whether to go on with it. Such a
  // line stays where it is.
  bool HasToWait(std::u16string_view line) const;
  void CallByInvitation(std::u16string_view line);
  void LoadMacroNamedBy(std::u16string_view line);
  void PerformPlain(const CommandRow& row, std::u16string_view line);
  void PerformRoutine(const CommandRow& row, std::u16string_view typed);
  // Empties the command pane if it still holds the line.
  void EmptyPaneOf(std::u16string_view line);
  void WriteChatLine();
  void WriteActionLine(std::u16string_view typedWord);
  Nicknames NicknamesInForce() const;
  CommandTargets TargetsOf(std::u16string_view line) const;

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
};

}  // namespace verlume
