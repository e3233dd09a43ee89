// The list beside the command pane: while the pane contains a single word that begins with "/", the
// list shows the commands and macros that begin with it, and what they do; behind "/CALL " it shows
// the computers that were called last. It takes only the keys Down, Up and Right. Where nothing
// begins with the word, a hint says that it will be sent as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "commands/completion_words.h"
#include "commands/history.h"
#include "macros/store/macro_store.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class CommandCompletion {
 public:
  CommandCompletion(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings,
                    MacroStore& macroStore, const CommandHistory& history)
      : state_(state),
        platform_(platform),
        errors_(errors),
        settings_(settings),
        macroStore_(macroStore),
        history_(history) {}

  // Opens, updates or closes the list. A line that the history shows opens none.
  void rtbCommands_Change();

  // While the list is open, Down and Up walk through its rows and the typed word, and put each into
  // the pane. Right at the end of the word puts the selected row there, or the first one, and
  // closes the list. These are swallowed; all other keys are left alone.
  void rtbCommands_KeyDown(int& keyCode, int shift);

  // The hint is there again, in the language in force; the list is not.
  void rtbCommands_GotFocus();
  void rtbCommands_LostFocus();

  // Puts the clicked row into the pane, closes the list, and gives the focus back to the pane.
  void lstCompletions_Click();

  // Turns the list on or off, and saves the choice.
  void mnuToolsCompletions_Click();

 private:
  enum class Opening { No, Yes };  // of the list

  void FollowPane(Opening opening);
  void FollowCallLine(const std::u16string& text, Opening opening);
  void ShowRows();
  void ShowHint(bool isShown);
  void Hide();
  void Close();
  void Walk(int step);
  void AcceptRow();
  bool IsCaretAtEnd() const;
  // Whether the interpreter takes the line's first word for a command.
  bool RunsCommand(std::u16string_view line) const;
  void PutIntoPane(std::u16string_view word);
  std::vector<std::u16string> RunnableMacros() const;

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  MacroStore& macroStore_;
  const CommandHistory& history_;

  std::u16string typed_;          // the word that the rows complete
  std::vector<Completion> rows_;  // of the list
  // Read once per word: a folder on a slow network must not make typing slow.
  std::optional<std::vector<std::u16string>> macros_;
  bool updating_ = false;  // this object is changing the pane
};

}  // namespace verlume
