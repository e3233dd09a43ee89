#include "shell/window_behaviour.h"

#include <initializer_list>

#include "shell/conversions.h"
#include "shell/setting_names.h"

namespace verlume {

void WindowBehaviour::mnuToolsAlwaysOnTop_Click() {
  errors_.Guard(Procedure::mnuToolsAlwaysOnTop_Click, [this] {
    state_.AlwaysOnTop = !state_.AlwaysOnTop;
    platform_.frmMain.window.SetTopMost(state_.AlwaysOnTop);
    platform_.frmMain.mnuToolsAlwaysOnTop.SetChecked(state_.AlwaysOnTop);
    settings_.WriteSetting(setting_section::kGeneral, setting_key::kAlwaysOnTop,
                           BooleanText(state_.AlwaysOnTop));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void BindContextHelp(std::initializer_list<Control*> controls) {
  for (Control* control : controls) {
    control->onMouseUp = [control](MouseButton button) {
      if (button != MouseButton::Left) control->ShowContextHelp();
    };
  }
}

void BindContextHelp(const MainWindow& frmMain) {
  BindContextHelp({&frmMain.lblCurrentDateTime,
                   &frmMain.lblChatStartDateTime,
                   &frmMain.lblChatDuration,
                   &frmMain.lblLocalIP,
                   &frmMain.lblLocalPort,
                   &frmMain.lblLocalNickname,
                   &frmMain.lblRemoteIP,
                   &frmMain.lblRemotePort,
                   &frmMain.lblRemoteNickname,
                   &frmMain.lblBytesSent,
                   &frmMain.lblBytesReceived,
                   &frmMain.lblCurrentDateTimeCaption,
                   &frmMain.lblChatStartDateTimeCaption,
                   &frmMain.lblChatDurationCaption,
                   &frmMain.lblLocalPortCaption,
                   &frmMain.lblLocalNicknameCaption,
                   &frmMain.lblRemotePortCaption,
                   &frmMain.lblRemoteNicknameCaption,
                   &frmMain.lblBytesSentCaption,
                   &frmMain.lblBytesReceivedCaption,
                   &frmMain.lblStatus,
                   &frmMain.prgStatus,
                   &frmMain.lblWaiting,
                   &frmMain.lblLock,
                   &frmMain.picShape,
                   &frmMain.cmdSend,
                   &frmMain.chkBold,
                   &frmMain.chkItalics,
                   &frmMain.chkUnderline,
                   &frmMain.lblColor,
                   &frmMain.lblCopyright,
                   &frmMain.picCopyright,
                   &frmMain.findBar.cmdFindPrevious,
                   &frmMain.findBar.cmdFindNext,
                   &frmMain.findBar.lblFindResult,
                   &frmMain.findBar.cmdFindClose,
                   &frmMain.completionList.lstCompletions});
}

void BindContextHelp(const PeopleWindow& frmPeople) {
  BindContextHelp({&frmPeople.lblPeopleNone, &frmPeople.lstPeople, &frmPeople.lblPeopleNameCaption,
                   &frmPeople.chkPeopleVerified, &frmPeople.lblPeopleKeyCaption,
                   &frmPeople.lblPeopleKey, &frmPeople.cmdPeopleForget, &frmPeople.cmdPeopleClose});
}

void BindContextHelp(const VerifyWindow& frmVerify) {
  BindContextHelp({&frmVerify.lblVerifyWho, &frmVerify.lblVerifyDigits, &frmVerify.picVerifyCode,
                   &frmVerify.lblVerifyMeaning, &frmVerify.cmdVerifyCopy, &frmVerify.cmdVerifyMatch,
                   &frmVerify.cmdVerifyClose});
}

void BindContextHelp(const ReachWindow& frmReach) {
  BindContextHelp({&frmReach.lstReachAddresses, &frmReach.lblReachRouterCaption,
                   &frmReach.lblReachRouter, &frmReach.lblReachFirewallCaption,
                   &frmReach.lblReachFirewall, &frmReach.lblReachAdviceCaption,
                   &frmReach.lblReachAdvice, &frmReach.lblReachAddressCaption,
                   &frmReach.cmdReachCopyAddress, &frmReach.cmdReachCopyInvitation,
                   &frmReach.cmdReachAgain, &frmReach.cmdReachClose});
}

}  // namespace verlume
