#include "connection/resend.h"

#include <optional>
#include <string>

#include "shell/resend_bar.h"
#include "shell/said_line.h"

namespace verlume {

// A failure is reported in a box, and ends the conversation.
void Resend::cmdResend_Click() {
  if (!IsOffered()) return;
  // A copy: a box lets another conversation begin.
  const PeerTrace peer = state_.Undelivered.Current();
  while (state_.IsConnected && !state_.PeerStops && state_.Undelivered.Current() == peer) {
    const std::optional<std::u16string> line = state_.Undelivered.TakeFirstFor(peer);
    if (!line) break;
    SendLine(*line);
  }
  Leave();
}

void Resend::SendLine(std::u16string_view line) {
  const bool isAction = IsActionLine(line, state_.ProtocolMarker);
  wire_.SendLine(line);
  dialogue_.WriteDialogueLine(RtfOfLine(line, state_.ProtocolMarker),
                              isAction ? Sender::LocalAction : Sender::Local, CommandPane::Keep);
}

void Resend::cmdResendDrop_Click() {
  if (!IsOffered()) return;
  state_.Undelivered.DropFor(state_.Undelivered.Current());
  Leave();
}

void Resend::cmdResendClose_Click() {
  state_.HidesResend = true;
  Leave();
}

void Resend::Leave() {
  ShowResendBar(state_, platform_);
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
