// The menu of the last calls, and the bar after a conversation.
#include "connection/connection_actions.h"
#include "shell/again_bar.h"
#include "shell/trim.h"

namespace verlume {

void ConnectionActions::CallFromMenu(const CalledHost& called) {
  const std::u16string line = u"/CALL " + CallParameters(called);
  RunKeepingDraft(Procedure::CallRemote, line, [this, &line] { CallRemote(line); });
}

void ConnectionActions::WaitFromMenu(std::int32_t port) {
  const std::u16string line = u"/WAIT " + DecimalText(port);
  RunKeepingDraft(Procedure::WaitForCall, line, [this, &line] { WaitForCall(line); });
}

void ConnectionActions::mnuCommCallAgain_Choose(std::size_t index) {
  if (index >= state_.CalledHosts.size()) return;
  // A copy: the call reorders them.
  const CalledHost called = state_.CalledHosts[index];
  CallFromMenu(called);
}

void ConnectionActions::mnuCommCallAgain_Last() {
  errors_.Guard(Procedure::CallRemote,
                [this] { ForgetCalledHosts(state_, platform_, with_.settings); });
  platform_.frmMain.rtbCommands.SetFocus();
}

void ConnectionActions::cmdAgain_Click() {
  if (!state_.OffersAgain) return;
  if (state_.HasCalled) {
    CallFromMenu({std::u16string(Trim(state_.RemoteHost)), state_.RemotePort, {}});
  } else {
    WaitFromMenu(state_.LocalPort);
  }
}

void ConnectionActions::cmdAgainClose_Click() {
  WithdrawAgain(state_, platform_);
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
