// What the connection raises, and what is about it.
#include "shell/program/bind_event.h"
#include "shell/program/program.h"

namespace verlume {

void Program::BindSocket() {
  Socket& sckControl = platform_.sckControl;
  On(sckControl.onConnectionRequest, socketEvents_, &SocketEvents::sckControl_ConnectionRequest);
  On(sckControl.onConnect, socketEvents_, &SocketEvents::sckControl_Connect);
  On(sckControl.onDataArrival, socketEvents_, &SocketEvents::sckControl_DataArrival);
  // A peer that sends faster than the dialogue pane shows is slowed down.
  On(platform_.frmMain.rtbData.onInsertionStarted, sckControl, &Socket::PauseArrivals);
  platform_.frmMain.rtbData.onInsertionFinished = [this] {
    if (!state_.PeerStops) platform_.sckControl.ResumeArrivals();
  };
  On(sckControl.onAcknowledged, wire_, &WireProtocol::ShowLinesWaiting);
  On(sckControl.onUndelivered, wire_, &WireProtocol::OnUndelivered);
  On(sckControl.onClose, socketEvents_, &SocketEvents::sckControl_Close);
}

void Program::BindPrivacy() {
  On(platform_.privacy.onState, peerGate_, &PeerGate::privacy_State);
  On(platform_.privacy.onPeerKnown, peerGate_, &PeerGate::privacy_PeerKnown);
  people_.onChange = [this] {
    peerGate_.ShowLock();
    peopleList_.Refresh();
  };
  language_.onApplied = [this] {
    peerGate_.ShowLock();
    peerGate_.ShowBar();
    port_.ShowState();
    reachList_.Refresh();
  };
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.keyBar.cmdKeyGoOn.onClick, peerGate_, &PeerGate::cmdKeyGoOn_Click);
  On(frmMain.keyBar.cmdKeyHangUp.onClick, peerGate_, &PeerGate::cmdKeyHangUp_Click);
  On(frmMain.mnuCommInvite.onClick, connection_, &ConnectionActions::mnuCommInvite_Click);
  const PrivateMenu& menu = frmMain.privateMenu;
  On(menu.mnuPrivateWhenPossible.onClick, privateMenu_,
     &PrivateMenuChoice::mnuPrivateWhenPossible_Click);
  On(menu.mnuPrivateOnly.onClick, privateMenu_, &PrivateMenuChoice::mnuPrivateOnly_Click);
  On(menu.mnuPrivateNever.onClick, privateMenu_, &PrivateMenuChoice::mnuPrivateNever_Click);
  BindPeople();
}

void Program::BindPeople() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuCommPeople.onClick, peopleList_, &PeopleList::mnuCommPeople_Click);
  const PeopleWindow& frmPeople = platform_.frmPeople;
  On(frmPeople.lstPeople.onClick, peopleList_, &PeopleList::lstPeople_Click);
  On(frmPeople.txtPeopleName.onChange, peopleList_, &PeopleList::txtPeopleName_Change);
  On(frmPeople.chkPeopleVerified.onClick, peopleList_, &PeopleList::chkPeopleVerified_Click);
  On(frmPeople.cmdPeopleForget.onClick, peopleList_, &PeopleList::cmdPeopleForget_Click);
  On(frmPeople.cmdPeopleClose.onClick, peopleList_, &PeopleList::cmdPeopleClose_Click);

  On(frmMain.mnuCommVerify.onClick, verification_, &Verification::mnuCommVerify_Click);
  On(frmMain.lblLock.onMouseDown, verification_, &Verification::lblLock_MouseDown);
  const VerifyWindow& frmVerify = platform_.frmVerify;
  On(frmVerify.cmdVerifyCopy.onClick, verification_, &Verification::cmdVerifyCopy_Click);
  On(frmVerify.cmdVerifyMatch.onClick, verification_, &Verification::cmdVerifyMatch_Click);
  On(frmVerify.cmdVerifyClose.onClick, verification_, &Verification::cmdVerifyClose_Click);
}

void Program::BindReach() {
  platform_.router.onReport = [this] {
    port_.router_Report();
    reachList_.Refresh();
  };
  platform_.network.onChange = [this] {
    port_.network_Change();
    reachList_.Refresh();
  };
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.routerBar.cmdRouterYes.onClick, port_, &PortKeeper::cmdRouterYes_Click);
  On(frmMain.routerBar.cmdRouterNo.onClick, port_, &PortKeeper::cmdRouterNo_Click);
  On(frmMain.routerBar.cmdRouterClose.onClick, port_, &PortKeeper::cmdRouterClose_Click);
  On(frmMain.mnuCommAskRouter.onClick, port_, &PortKeeper::mnuCommAskRouter_Click);
  On(frmMain.mnuCommReach.onClick, reachList_, &ReachList::mnuCommReach_Click);
  const ReachWindow& frmReach = platform_.frmReach;
  On(frmReach.cmdReachAgain.onClick, reachList_, &ReachList::cmdReachAgain_Click);
  On(frmReach.cmdReachCopyAddress.onClick, reachList_, &ReachList::cmdReachCopyAddress_Click);
  On(frmReach.cmdReachCopyInvitation.onClick, reachList_, &ReachList::cmdReachCopyInvitation_Click);
  On(frmReach.cmdReachClose.onClick, reachList_, &ReachList::cmdReachClose_Click);
}

void Program::BindAttention() {
  On(platform_.attention.onUserBack, alerts_, &Alerts::attention_UserBack);
  On(socketEvents_.onIncomingCall, alerts_, &Alerts::OnIncomingCall);
  dialogue_.onRemoteLine = [this](Sender sender, std::u16string_view text) {
    alerts_.OnRemoteLine(text, sender == Sender::RemoteAction);
  };
  const AttentionMenu& menu = platform_.frmMain.attentionMenu;
  On(menu.mnuAttentionLines.onClick, attentionSwitches_,
     &AttentionSwitches::mnuAttentionLines_Click);
  On(menu.mnuAttentionText.onClick, attentionSwitches_, &AttentionSwitches::mnuAttentionText_Click);
  On(menu.mnuAttentionSound.onClick, attentionSwitches_,
     &AttentionSwitches::mnuAttentionSound_Click);
  On(menu.mnuAttentionCount.onClick, attentionSwitches_,
     &AttentionSwitches::mnuAttentionCount_Click);
}

}  // namespace verlume
