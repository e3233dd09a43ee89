// The window Communication > Verify: digits that two people compare to be sure that nobody is
// between them.
#pragma once

#include <optional>
#include <string>

#include "people/people.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class Verification {
 public:
  Verification(AppState& state, Platform& platform, ErrorReport& errors, People& people)
      : state_(state), platform_(platform), errors_(errors), people_(people) {}

  // Shows the digits of the conversation, and returns when the window has been closed; says what
  // is needed if it is not private.
  void mnuCommVerify_Click();
  void lblLock_MouseDown(MouseButton button);
  void cmdVerifyCopy_Click();
  // The digits are the same on both screens: the key that they were made of is verified, whoever
  // is the peer by now.
  void cmdVerifyMatch_Click();
  void cmdVerifyClose_Click();

 private:
  // None unless the conversation is private.
  std::optional<Peer> PrivatePeer() const;
  void Show(const Peer& peer);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  People& people_;
  KeyFingerprint shownKey_{};
  std::u16string shownName_;
};

}  // namespace verlume
