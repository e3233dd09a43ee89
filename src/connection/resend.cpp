#include "connection/resend.h"

#include <optional>
#include <string>

#include "shell/resend_bar.h"
#include "shell/said_line.h"

namespace verlume {
namespace {

constexpr int kLinesInATurn = 10;

}  // namespace

// The window stays usable meanwhile, so that anything can happen between two turns.
void Resend::cmdResend_Click() {
  if (!IsOffered()) return;
  state_.HidesResend = true;
  ShowResendBar(state_, platform_);
  const ConnectionNumber connection = platform_.sckControl.CurrentConnection();
  const PeerTrace peer = state_.Undelivered.Current();
  const auto goesOn = [&] {
    return state_.IsConnected && !state_.PeerStops &&
           platform_.sckControl.CurrentConnection() == connection;
  };
  for (int sent = 1; goesOn(); ++sent) {
    const std::optional<std::u16string> line = state_.Undelivered.TakeFirstFor(peer);
    if (!line) break;
    SendLine(*line);
    if (sent % kLinesInATurn == 0) platform_.application.YieldToEvents();
  }
  if (platform_.application.HasEnded()) return;
  // If the user is asked about the peer, the rest is offered afterwards.
  state_.HidesResend = false;
  ShowResendBar(state_, platform_);
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
