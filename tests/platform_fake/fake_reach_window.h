// The window that says who can call this computer, in memory.
#pragma once

#include "platform/reach_window.h"
#include "platform_fake/fake_controls.h"

namespace verlume::fake {

struct FakeReachWindow {
  FakeReachWindow();
  ~FakeReachWindow();

  FakeWindow window;
  FakeTableBox lstReachAddresses;
  FakeLabel lblReachRouterCaption;
  FakeLabel lblReachRouter;
  FakeLabel lblReachFirewallCaption;
  FakeLabel lblReachFirewall;
  FakeLabel lblReachAdviceCaption;
  FakeLabel lblReachAdvice;
  FakeLabel lblReachAddressCaption;
  FakeTextField txtReachAddress;
  FakeButton cmdReachCopyAddress;
  FakeButton cmdReachCopyInvitation;
  FakeButton cmdReachAgain;
  FakeButton cmdReachClose;

  // The logic's view of the window.
  ReachWindow frmReach;
};

}  // namespace verlume::fake
