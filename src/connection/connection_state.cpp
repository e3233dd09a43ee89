#include "connection/connection_state.h"

#include "reach/port_keeper.h"
#include "records/log_file.h"
#include "shell/delivery.h"
#include "shell/resend_bar.h"
#include "shell/status_panel.h"
#include "shell/welcome_card.h"

namespace verlume {

ConnectionState StateOf(const AppState& state) {
  if (state.IsConnected) return ConnectionState::Connected;
  if (state.IsWaiting) return ConnectionState::Waiting;
  if (state.IsCalling) return ConnectionState::Calling;
  return ConnectionState::Idle;
}

void EnterState(AppState& state, ConnectionState entered) {
  state.IsWaiting = entered == ConnectionState::Waiting;
  state.IsCalling = entered == ConnectionState::Calling;
  state.IsConnected = entered == ConnectionState::Connected;
  state.ReservedState = false;
}

void EndStop(AppState& state, Platform& platform) {
  if (!state.PeerStops) return;
  state.PeerStops = false;
  const FloatingPanel& bar = platform.frmMain.keyBar.fraKey;
  if (bar.HasFocus()) platform.frmMain.rtbCommands.SetFocus();
  platform.frmMain.keyBar.fraKey.SetVisible(false);
}

void ResetConnection(AppState& state, Platform& platform) {
  // That these lines were not delivered may become known only during the next conversation, and
  // belongs into the log of this one. Before the handshake there is no conversation.
  if (platform.sckControl.LinesWaiting() > 0) {
    const bool isConversation = StateOf(state) == ConnectionState::Connected;
    state.ClosedLog = isConversation ? LogPath(state, platform.files) : std::u16string();
  }
  EnterState(state, ConnectionState::Idle);
  MainWindow& frmMain = platform.frmMain;
  frmMain.lblLocalPort.SetCaption(u"");
  frmMain.lblRemoteIP.SetCaption(u"");
  frmMain.lblRemotePort.SetCaption(u"");
  ShowLamp(state, frmMain);
  platform.sckControl.Close();
  EndBeingCalled(state, platform);
  if (state.PeerStops) platform.sckControl.ResumeArrivals();
  EndStop(state, platform);
  frmMain.lblLock.SetCaption(u"");
  // When the peer closes, the socket raises that only when all that came before has been inserted.
  frmMain.rtbData.DropInsertions();
  state.LinesWaiting = 0;
  state.LinesSaid = 0;
  ShowDelivery(state, frmMain);
  ShowResendBar(state, platform);
  ShowWelcomeCard(state, platform);
}

}  // namespace verlume
