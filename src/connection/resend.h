// What the user answers to the bar that offers to send the lines that were not delivered.
#pragma once

#include <string_view>

#include "commands/dialogue/dialogue.h"
#include "connection/wire_protocol.h"
#include "platform/platform.h"
#include "shell/app_state.h"

namespace verlume {

class Resend {
 public:
  Resend(AppState& state, Platform& platform, WireProtocol& wire, Dialogue& dialogue)
      : state_(state), platform_(platform), wire_(wire), dialogue_(dialogue) {}

  // Sends the lines that are kept for the peer of this conversation, in the order in which they
  // were said. Each is a line of this conversation from then on, in the pane and in the log, and
  // waits to be acknowledged. What is half typed stays. Events are handled between the lines; if
  // the conversation ends meanwhile, the rest is kept.
  void cmdResend_Click();
  // Forgets them.
  void cmdResendDrop_Click();
  // They are offered in the next conversation with the peer.
  void cmdResendClose_Click();

 private:
  bool IsOffered() const { return platform_.frmMain.resendBar.fraResend.Visible(); }
  void SendLine(std::u16string_view line);
  void Leave();

  AppState& state_;
  Platform& platform_;
  WireProtocol& wire_;
  Dialogue& dialogue_;
};

}  // namespace verlume
