// The slash commands: one row per command, in the order in which a typed word is compared.
#pragma once

#include <span>
#include <string_view>

#include "commands/text_format.h"
#include "connection/connection_actions.h"
#include "platform/platform.h"
#include "shell/app_state.h"

namespace verlume {

enum class CommandKind {
  Plain,              // the command pane is emptied, then the row's action runs
  Routine,            // the routine gets the line; afterwards the line leaves the pane
  NormalisedRoutine,  // the same, after surplus blanks are removed from the line
  Action,             // the line is an action line; the row has nothing to perform
};

// What a command can act on.
struct CommandTargets {
  std::u16string_view line;  // the command with what follows it
  AppState& state;
  MainWindow& frmMain;
  Application& application;
  ConnectionActions& connection;
  TextFormat& textFormat;
};

struct CommandRow {
  std::u16string_view english;
  std::u16string_view greek;
  CommandKind kind;
  void (*perform)(const CommandTargets& on);
};

std::span<const CommandRow> CommandTable();

// The first row with the word, in either language; null if there is none. Compares exactly: the
// caller converts the word to upper case.
const CommandRow* FindCommand(std::u16string_view word);

}  // namespace verlume
