// The list below the command pane: while a single word that begins with "/" stands in the pane, it
// shows the commands and macros that the word can become. It takes no key but Down and Up.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "commands/completion_words.h"
#include "macros/store/macro_store.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class CommandCompletion {
 public:
  CommandCompletion(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings,
                    MacroStore& macroStore)
      : state_(state),
        platform_(platform),
        errors_(errors),
        settings_(settings),
        macroStore_(macroStore) {}

  // The list opens, follows what is typed, or closes.
  void rtbCommands_Change();

  // While the list is open Down and Up go round its rows and what was typed, put each into the pane
  // as they come to it, and are swallowed. Any other key is left alone.
  void rtbCommands_KeyDown(int& keyCode, int shift);

  void rtbCommands_LostFocus();

  // Puts the row into the pane, closes the list, and gives the focus back to the pane.
  void lstCompletions_Click();

  // Turns the list on or off, and keeps the choice.
  void mnuToolsCompletions_Click();

 private:
  void FollowPane();
  void ShowRows();
  void Hide();
  void Close();
  void Walk(int step);
  void PutIntoPane(std::u16string_view word);
  std::vector<std::u16string> MacrosThatRun() const;

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  MacroStore& macroStore_;

  std::u16string typed_;          // what the rows are the completions of
  std::vector<Completion> rows_;  // of the list
  // Read once a word: a folder far away must not make typing slow.
  std::optional<std::vector<std::u16string>> macros_;
  bool putting_ = false;  // the change in the pane is this object's own
};

}  // namespace verlume
