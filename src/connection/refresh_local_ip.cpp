// "/REFRESH".
#include "connection/connection_actions.h"
#include "connection/connection_texts.h"
#include "shell/welcome_card.h"

namespace verlume {

void ConnectionActions::RefreshLocalIP() {
  namespace texts = connection_texts::refresh_local_ip;
  Run(Procedure::RefreshLocalIP, [this] {
    if (platform_.sckControl.LocalIP() == state_.LocalAddress) {
      platform_.dialogs.ShowMessage(Note(In(texts::kNoNeed), In(texts::kTitle)));
      return;
    }
    const LeaveTexts leave = {.connected = texts::kConnected,
                              .waiting = texts::kWaiting,
                              .waitingTitle = texts::kTitle,
                              .calling = texts::kCalling,
                              .title = texts::kTitle};
    if (!AskToLeaveState(leave)) return;

    ResetConnection(state_, platform_);
    // Read again: the address may have changed while the question was open.
    state_.LocalAddress = platform_.sckControl.LocalIP();
    platform_.frmMain.lblLocalIP.SetCaption(state_.LocalAddress);
    ShowWelcomeCard(state_, platform_);
    with_.statusPanel.ClearValues();
    WriteOutgoingText();
  });
}

}  // namespace verlume
