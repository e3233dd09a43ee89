#include "platform_fake/fake_reach_window.h"

namespace verlume::fake {

FakeReachWindow::FakeReachWindow()
    : frmReach{
          .window = window,
          .lstReachAddresses = lstReachAddresses,
          .lblReachRouterCaption = lblReachRouterCaption,
          .lblReachRouter = lblReachRouter,
          .lblReachFirewallCaption = lblReachFirewallCaption,
          .lblReachFirewall = lblReachFirewall,
          .lblReachAdviceCaption = lblReachAdviceCaption,
          .lblReachAdvice = lblReachAdvice,
          .lblReachAddressCaption = lblReachAddressCaption,
          .txtReachAddress = txtReachAddress,
          .cmdReachCopyAddress = cmdReachCopyAddress,
          .cmdReachCopyInvitation = cmdReachCopyInvitation,
          .cmdReachAgain = cmdReachAgain,
          .cmdReachClose = cmdReachClose,
      } {}

FakeReachWindow::~FakeReachWindow() = default;

}  // namespace verlume::fake
