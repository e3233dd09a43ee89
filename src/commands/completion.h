// The list below the command pane: while the pane contains a single word that begins with "/", the
// list shows the commands and macros that begin with it, and behind "/CALL " the computers that
// were called last. It takes only the keys Down and Up.
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

  // Opens, updates or closes the list.
  void rtbCommands_Change();

  // While the list is open, Down and Up walk through its rows and the typed word, put each into the
  // pane, and are swallowed. All other keys are left alone.
  void rtbCommands_KeyDown(int& keyCode, int shift);

  void rtbCommands_LostFocus();

  // Puts the clicked row into the pane, closes the list, and gives the focus back to the pane.
  void lstCompletions_Click();

  // Turns the list on or off, and saves the choice.
  void mnuToolsCompletions_Click();

 private:
  void FollowPane();
  void FollowCallLine(const std::u16string& text);
  void ShowRows();
  void Hide();
  void Close();
  void Walk(int step);
  void PutIntoPane(std::u16string_view word);
  std::vector<std::u16string> RunnableMacros() const;

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  MacroStore& macroStore_;

  std::u16string typed_;          // the word that the rows complete
  std::vector<Completion> rows_;  // of the list
  // Read once per word: a folder on a slow network must not make typing slow.
  std::optional<std::vector<std::u16string>> macros_;
  bool updating_ = false;  // this object is changing the pane
};

}  // namespace verlume
