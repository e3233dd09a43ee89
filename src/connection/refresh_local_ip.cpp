// "/REFRESH".
#include "connection/connection_actions.h"
#include "connection/connection_texts.h"

namespace verlume {

void ConnectionActions::RefreshLocalIP() {
  namespace texts = connection_texts::refresh_local_ip;
  Run(Procedure::RefreshLocalIP, [this] {
    if (platform_.sckControl.LocalIP() == state_.LocalAddress) {
      platform_.dialogs.ShowMessage(Note(In(texts::kNoNeed), In(texts::kTitle)));
      return;
    }
    const LeaveTexts leave = {texts::kConnected, texts::kWaiting, texts::kTitle, texts::kCalling,
                              texts::kTitle};
    ConnectionState agreed;
    if (!MayLeaveState(leave, agreed)) return;

    ResetConnection(state_, platform_);
    // Read again: the machine may have moved on while the question was open.
    state_.LocalAddress = platform_.sckControl.LocalIP();
    platform_.frmMain.lblLocalIP.SetCaption(state_.LocalAddress);
    with_.statusPanel.ClearValues();
    WriteOutgoingText();
  });
}

}  // namespace verlume
