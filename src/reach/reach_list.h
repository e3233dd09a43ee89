// The window Communication > Can I be called?: who can call this computer by which address, what
// the router said, and what to do next.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "reach/reach_facts.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class ReachList {
 public:
  ReachList(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Shows the window, and returns when it has been closed. The router is asked for its outer
  // address if the user allows that.
  void mnuCommReach_Click();
  // Looks again: asks the router anew, and the firewalls.
  void cmdReachAgain_Click();
  void cmdReachCopyAddress_Click();
  void cmdReachCopyInvitation_Click();
  void cmdReachClose_Click();

  // Shows what is known now, if the window is open and shows anything else.
  void Refresh();

 private:
  struct Contents {
    std::vector<std::vector<std::u16string>> rows;
    std::u16string router;
    std::u16string firewall;
    std::u16string advice;
    std::u16string place;       // to copy; "" for none
    std::u16string invitation;  // the same

    bool operator==(const Contents&) const = default;
  };

  void AskRouter();
  Contents Current() const;
  std::u16string InvitationTo(const PlaceToCall& place) const;
  void Show(const Contents& contents);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  bool isOpen_ = false;
  std::vector<Firewall> firewalls_;
  std::optional<Contents> shown_;
};

}  // namespace verlume
