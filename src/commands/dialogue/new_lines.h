// What arrives while the user reads: it moves neither the text in view nor a selection. A button at
// the lower edge of the dialogue pane counts the lines below, and a thin line marks where the lines
// begin that came while the user was in no window of the program.
#pragma once

#include <cstddef>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class NewLines {
 public:
  NewLines(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // How a line of the peer, or none, is written now: the pane follows it, or stays while the user
  // has scrolled up, has selected something, or is about to.
  Reader ReaderNow() const;
  // Call one of them after a line has been written, the first with the place where it begins.
  void NoteArrived(std::size_t position, Reader reader);
  void NoteSaid();

  // The end of the dialogue is in view.
  void rtbData_EndShown();
  // Leads down to the end of the dialogue.
  void cmdNewLines_Click();
  // Ctrl+End leads down, besides what it does in the command pane. Any key means that the user has
  // read on, if the end of the dialogue is in view.
  void rtbCommands_KeyDown(int keyCode, int shift);
  void window_Activated() { isMarked_ = false; }

 private:
  void ShowCount(std::size_t lines);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  bool isMarked_ = false;  // since the user left
};

}  // namespace verlume
