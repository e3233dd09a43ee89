// The window that says who can call this computer, frmReach, as the logic sees it: references to
// its controls, by name. It is shown in the middle of its parent. Escape presses cmdReachClose, the
// default button. The texts may change while it is open, and it grows if they need more room.
#pragma once

#include "platform/control.h"
#include "platform/table_box.h"
#include "platform/window.h"

namespace verlume {

struct ReachWindow {
  Window& window;
  TableBox& lstReachAddresses;  // columns: the address, who can call it
  // Texts of several lines, which can be selected and copied. A line that is too long is broken
  // anywhere.
  Label& lblReachRouterCaption;
  Label& lblReachRouter;  // what the router said
  Label& lblReachFirewallCaption;
  Label& lblReachFirewall;
  Label& lblReachAdviceCaption;
  Label& lblReachAdvice;  // what to do next
  Label& lblReachAddressCaption;
  TextField& txtReachAddress;  // the address to give, which the user cannot change
  Button& cmdReachCopyAddress;
  Button& cmdReachCopyInvitation;
  Button& cmdReachAgain;
  Button& cmdReachClose;
};

}  // namespace verlume
