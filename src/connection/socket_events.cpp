#include "connection/socket_events.h"

#include <string>
#include <utility>

#include "connection/connection_note.h"
#include "connection/connection_state.h"
#include "connection/connection_texts.h"
#include "connection/rule_texts.h"
#include "connection/status_texts.h"
#include "reach/router_bar.h"
#include "shell/again_bar.h"
#include "shell/delivery.h"
#include "shell/dialogue_rule.h"
#include "shell/welcome_card.h"

namespace verlume {

void SocketEvents::sckControl_ConnectionRequest(std::int64_t requestId) {
  const std::u16string ip = platform_.sckControl.RemoteHostIP();
  // The user is not to notice this, so the focus stays where it is.
  if (refused_.IsTurnedAway(ip, now_)) return platform_.sckControl.Reject(requestId);
  errors_.Guard(Procedure::sckControl_ConnectionRequest, [&] {
    ShowPeer(ip);
    if (onIncomingCall) onIncomingCall(ip);
    const bool isAccepted = AskWhetherToAccept(ip);
    // The wait may have ended while the question was open: any error ends it, and has been
    // reported. Then there is no call to accept or reject.
    const bool isStillWaiting = StateOf(state_) == ConnectionState::Waiting &&
                                platform_.sckControl.State() == SocketState::Listening;
    if (!isStillWaiting) return;
    if (isAccepted) {
      AcceptCaller(requestId);
    } else if (keepsWaiting_) {
      RejectCaller(requestId, ip);
    } else {
      ResetConnection(state_, platform_);
      SetStatus(status_texts::kRejected, ip, state_.LocalPort);
    }
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void SocketEvents::AcceptCaller(std::int64_t requestId) {
  platform_.sckControl.Close();
  ForgetRemoteNickname();
  platform_.sckControl.Accept(requestId);
  WithdrawRouterBar(state_, platform_);
  ShowWelcomeCard(state_, platform_);
  isSilent_ = true;
  silence_ = 0;
  wire_.SendStart();
}

void SocketEvents::RejectCaller(std::int64_t requestId, const std::u16string& ip) {
  platform_.sckControl.Reject(requestId);
  platform_.frmMain.lblRemoteIP.SetCaption(u"");
  platform_.frmMain.lblRemotePort.SetCaption(u"");
  platform_.frmMain.lblStatus.SetCaption(
      status_texts::kWaiting.Fill(state_.IsGreek, {DecimalText(state_.LocalPort)}));
  refused_.Refuse(ip, now_);
  ShowTurnedAway();
}

bool SocketEvents::AskWhetherToAccept(const std::u16string& ip) {
  namespace texts = connection_texts::connection_request;
  const bool isGreek = state_.IsGreek;
  Message ask =
      Question(texts::kAsk.Fill(isGreek, {ip, DecimalText(platform_.sckControl.RemotePort())}),
               texts::kTitle.In(isGreek), Answer::Yes);
  ask.unexpected = true;
  Tick keepWaiting{std::u16string(texts::kKeepWaiting.In(isGreek)), keepsWaiting_};
  ask.tick = &keepWaiting;
  const bool isAccepted = platform_.dialogs.ShowMessage(ask) == Answer::Yes;
  keepsWaiting_ = keepWaiting.isSet;
  if (!keepsWaiting_) refused_.Clear();
  ShowTurnedAway();
  return isAccepted;
}

void SocketEvents::sckControl_Connect() {
  // Nothing is sent: the side that was called sends first.
  errors_.Guard(Procedure::sckControl_Connect, [this] {
    ForgetRemoteNickname();
    ShowPeer(platform_.sckControl.RemoteHostIP());
  });
}

void SocketEvents::sckControl_DataArrival(std::int32_t) {
  isSilent_ = false;
  errors_.Guard(Procedure::sckControl_DataArrival,
                [this] { wire_.OnDataArrival(platform_.sckControl.GetData()); });
}

void SocketEvents::sckControl_Close() {
  errors_.Guard(Procedure::sckControl_Close, [this] {
    const PrivacyFailure failure = platform_.privacy.LastFailure();
    const bool isGoodbye = platform_.privacy.HasPeerSaidGoodbye();
    platform_.sckControl.Close();
    const ConnectionState left = StateOf(state_);
    const std::u16string notPrivate = NotPrivateText();
    ResetConnection(state_, platform_);
    platform_.frmMain.window.FlagForAttention();
    const bool isConversation = left == ConnectionState::Connected;
    if (left != ConnectionState::Idle && !isConversation && failure != PrivacyFailure::None) {
      platform_.frmMain.lblStatus.SetCaption(notPrivate);
      return ExplainPrivacyFailure(state_, platform_, failure);
    }
    if (left == ConnectionState::Calling || left == ConnectionState::Waiting) {
      SetStatus(status_texts::kNotEstablished, state_.RemoteHost, state_.RemotePort);
      const bool wasCall = left == ConnectionState::Calling;
      (wasCall ? ExplainFailedCall : ExplainFailedWait)(state_, platform_);
      return;
    }
    if (isConversation) {
      // If onUndelivered has told of none, there may be lines that came too late.
      state_.Undelivered.Lose(platform_.sckControl.CurrentConnection(), 0);
      OfferAgain(state_, platform_);
    }
    SetStatus(status_texts::kClosedByPeer, state_.RemoteAddress, state_.RemotePort);
    if (isConversation) {
      AddDialogueRule(state_, platform_,
                      isGoodbye ? rule_texts::kEndedByPeer : rule_texts::kConnectionLost);
    }
    log_.AppendConnectionLine(platform_.frmMain.lblStatus.Caption());
    state_.LogOpen = false;
  });
}

// Who has called is known only by what the window shows of it.
std::u16string SocketEvents::NotPrivateText() const {
  const MainWindow& frmMain = platform_.frmMain;
  const bool wasCalled = StateOf(state_) == ConnectionState::Waiting;
  return status_texts::kNotPrivate.Fill(
      state_.IsGreek,
      {wasCalled ? frmMain.lblRemoteIP.Caption() : state_.RemoteHost,
       wasCalled ? frmMain.lblRemotePort.Caption() : DecimalText(state_.RemotePort)});
}

void SocketEvents::tmrTimer_Timer() {
  ++now_;
  ShowTurnedAway();
  if (IsSilentCaller() && ++silence_ == kLongestSilence) sckControl_Close();
}

void SocketEvents::ShowTurnedAway() {
  std::vector<std::u16string> addresses = refused_.TurnedAway(now_);
  if (addresses == state_.TurnedAway) return;
  state_.TurnedAway = std::move(addresses);
  ShowDelivery(state_, platform_.frmMain);
}

// A caller that can talk in private is found dead by the connection itself. Until the user there
// lets this side in, it has nothing to say.
bool SocketEvents::HasProvedItself() const {
  const PeerPrivacy& privacy = platform_.privacy;
  return privacy.CurrentPeer() || privacy.State() == Privacy::Becoming ||
         privacy.State() == Privacy::Private;
}

// The wait may have ended, or have given way to another. While arrivals are paused the caller may
// have said something that waits.
bool SocketEvents::IsSilentCaller() const {
  const Socket& socket = platform_.sckControl;
  if (HasProvedItself()) return false;
  return isSilent_ && StateOf(state_) == ConnectionState::Waiting &&
         socket.State() == SocketState::Connected && !socket.ArrivalsPaused();
}

// What the new peer says before it sends its nickname must not appear under the last peer's
// nickname. The status panel still shows the last conversation.
void SocketEvents::ForgetRemoteNickname() {
  state_.RemoteNickname.clear();
}

void SocketEvents::ShowPeer(const std::u16string& ip) {
  const std::int32_t port = platform_.sckControl.RemotePort();
  SetStatus(status_texts::kEstablishing, ip, port);
  platform_.frmMain.lblRemoteIP.SetCaption(ip);
  platform_.frmMain.lblRemotePort.SetCaption(DecimalText(port));
}

void SocketEvents::SetStatus(const TextPair& text, const std::u16string& host, std::int32_t port) {
  platform_.frmMain.lblStatus.SetCaption(text.Fill(state_.IsGreek, {host, DecimalText(port)}));
}

}  // namespace verlume
