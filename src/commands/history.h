// The command history: the last 50 lines entered, as rich text. Page Up and Page Down go through
// them, and so do Up and Down where they have no other line of the pane to go to.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class CommandHistory {
 public:
  CommandHistory(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Adds the command pane's rich text as the newest line; the oldest is dropped if there are 50.
  void AddToHistory();

  // The special keys of the command pane: Tab, Escape, Page Up, Page Down, Up, Down.
  void rtbCommands_KeyDown(int& keyCode, int shift);

  // Whether the change of the pane that is being told is the recall of a line.
  bool IsShowingLine() const { return showingLine_; }

  void mnuToolsClearCommands_Click();
  void mnuToolsClearHistory_Click();

 private:
  int KeyInPane(int keyCode) const;
  void ShowPreviousLine();
  void ShowNextLine();
  void ShowLine(int index);
  void ClearCommands();

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  bool showingLine_ = false;
};

}  // namespace verlume
