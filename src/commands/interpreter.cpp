#include "commands/interpreter.h"

#include <optional>
#include <string>
#include <utility>

#include "commands/placeholders.h"
#include "connection/command_parts.h"
#include "macros/store/macro_paths.h"
#include "platform/char_code.h"
#include "shell/trim.h"

namespace verlume {
namespace {

std::u16string FirstWord(std::u16string_view line) {
  return CommandParts(line, 2).front();
}

// Trailing blanks go, and runs of blanks become one.
std::u16string Normalised(std::u16string_view line) {
  std::u16string normalised;
  for (const char16_t c : line) {
    if (c != u' ' || !normalised.ends_with(u' ')) normalised += c;
  }
  if (normalised.ends_with(u' ')) normalised.pop_back();
  return normalised;
}

}  // namespace

void CommandInterpreter::rtbCommands_KeyPress(int& charCode) {
  errors_.Guard(Procedure::rtbCommands_KeyPress, [this, &charCode] {
    platform_.application.YieldToEvents();
    if (charCode != char_code::kEnter && charCode != char_code::kCtrlEnter) return;
    // Swallowed, so that no line break ever enters the pane.
    const bool isEnter = std::exchange(charCode, char_code::kSwallowed) == char_code::kEnter;
    if (isEnter && platform_.frmMain.rtbCommands.TextLength() > 0) RunTypedLine();
  });
}

void CommandInterpreter::cmdSend_Click() {
  int enter = char_code::kEnter;
  rtbCommands_KeyPress(enter);
  platform_.frmMain.rtbCommands.SetFocus();
}

void CommandInterpreter::RunTypedLine() {
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (HasToWait(pane.Text())) return;
  with_.history.AddToHistory();
  LoadMacroNamedBy(pane.Text());
  const std::u16string line = state_.CommandLine = pane.Text();
  if (line.empty() || HasToWait(line)) return;  // as the macro was

  const CommandRow* row = FindCommand(platform_.locale.UpperCase(FirstWord(line)));
  if (!row && with_.connection.IsInvitationToCall(line)) {
    CallByInvitation(line);
  } else if (!row) {
    WriteChatLine();
  } else if (row->kind == CommandKind::Action) {
    WriteActionLine(FirstWord(line));
  } else if (row->kind == CommandKind::Plain) {
    PerformPlain(*row, line);
  } else {
    PerformRoutine(*row, line);
  }
}

bool CommandInterpreter::HasToWait(std::u16string_view line) const {
  if (!state_.PeerStops || line.empty()) return false;
  if (line.starts_with(u'/') && MacroExists(state_, platform_.files, line.substr(1))) return false;
  const CommandRow* row = FindCommand(platform_.locale.UpperCase(FirstWord(line)));
  return row ? row->kind == CommandKind::Action : !with_.connection.IsInvitationToCall(line);
}

void CommandInterpreter::CallByInvitation(std::u16string_view line) {
  state_.OutgoingText.clear();
  with_.connection.CallRemote(std::u16string(u"/CALL ").append(Trim(line)));
  EmptyPaneOf(line);
}

// "/" + a macro's name puts the macro in the place of the line.
void CommandInterpreter::LoadMacroNamedBy(std::u16string_view line) {
  if (!line.starts_with(u'/')) return;
  const std::u16string_view name = line.substr(1);
  if (!MacroExists(state_, platform_.files, name)) return;
  platform_.frmMain.rtbCommands.LoadFile(MacroPath(state_, platform_.files, name),
                                         TextFileFormat::RichText);
}

void CommandInterpreter::PerformPlain(const CommandRow& row, std::u16string_view line) {
  platform_.application.YieldToEvents();
  state_.OutgoingText.clear();
  with_.dialogue.ClearCommandPane();
  row.perform(TargetsOf(line));
  platform_.application.YieldToEvents();
}

void CommandInterpreter::PerformRoutine(const CommandRow& row, std::u16string_view typed) {
  platform_.application.YieldToEvents();
  const bool normalised = row.kind == CommandKind::NormalisedRoutine;
  const std::u16string line = normalised ? Normalised(typed) : std::u16string(typed);
  state_.CommandLine = line;
  state_.OutgoingText.clear();
  row.perform(TargetsOf(line));
  EmptyPaneOf(typed);
}

// A command that was refused must not join what is typed next. It is in the history.
void CommandInterpreter::EmptyPaneOf(std::u16string_view line) {
  if (platform_.application.HasEnded()) return;
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (pane.Text() == line) pane.SetText(u"");
}

void CommandInterpreter::WriteChatLine() {
  const std::u16string rtf =
      ExpandPlaceholders(platform_.frmMain.rtbCommands.Rtf(), NicknamesInForce());
  state_.OutgoingText = rtf;
  with_.wire.SendChatLine(rtf);
  with_.dialogue.WriteDialogueLine(rtf, Sender::Local, CommandPane::Clear);
  platform_.application.YieldToEvents();
}

void CommandInterpreter::WriteActionLine(std::u16string_view typedWord) {
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  platform_.application.YieldToEvents();
  if (FirstWord(pane.Text()) != typedWord) return;  // another event took the line away
  const std::u16string rtf = ExpandActionLine(pane.Rtf(), typedWord, NicknamesInForce());
  state_.OutgoingText = rtf;
  state_.RemoteMessage = true;
  with_.wire.SendActionLine(rtf);
  with_.dialogue.WriteDialogueLine(rtf, Sender::LocalAction, CommandPane::Clear);
}

Nicknames CommandInterpreter::NicknamesInForce() const {
  Nicknames nicknames{.local = state_.Nickname, .remote = std::nullopt};
  if (platform_.sckControl.State() == SocketState::Connected) {
    nicknames.remote = state_.RemoteNickname;
  }
  return nicknames;
}

CommandTargets CommandInterpreter::TargetsOf(std::u16string_view line) const {
  return {.line = line,
          .state = state_,
          .frmMain = platform_.frmMain,
          .application = platform_.application,
          .connection = with_.connection,
          .textFormat = with_.textFormat};
}

}  // namespace verlume
