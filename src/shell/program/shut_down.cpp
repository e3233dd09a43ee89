#include "shell/program/shut_down.h"

#include <utility>

namespace verlume {

ShutDown::ShutDown(AppState& state, Platform& platform, ErrorReport& errors,
                   std::function<void()> confirmExit, std::function<void()> resetConnection)
    : state_(state),
      platform_(platform),
      errors_(errors),
      confirmExit_(std::move(confirmExit)),
      resetConnection_(std::move(resetConnection)) {}

void ShutDown::Form_QueryUnload(bool& cancel, UnloadMode mode) {
  if (mode == UnloadMode::Code) return;
  const bool done = errors_.Guard(Procedure::Form_QueryUnload, [this, &cancel] {
    cancel = !UserConfirms();
    if (!cancel) platform_.frmMain.window.Unload();
  });
  if (!done) cancel = true;
}

void ShutDown::Form_Unload() {
  errors_.Guard(Procedure::Form_Unload, [this] {
    resetConnection_();
    platform_.sckControl.FinishSending();
  });
  platform_.application.End();
}

void ShutDown::mnuFileExit_Click() {
  errors_.Guard(Procedure::mnuFileExit_Click, [this] {
    state_.OutgoingText.clear();
    if (UserConfirms()) platform_.frmMain.window.Unload();
  });
}

// As if the user had typed the command.
bool ShutDown::UserConfirms() {
  state_.CommandLine = u"/EXIT";
  confirmExit_();
  return state_.ExitConfirmed;
}

}  // namespace verlume
