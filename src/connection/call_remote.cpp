// "/CALL host port" and "/CALL invitation".
#include <utility>

#include "connection/command_parts.h"
#include "connection/connection_actions.h"
#include "connection/connection_note.h"
#include "connection/connection_texts.h"
#include "connection/port_number.h"
#include "connection/status_texts.h"
#include "shell/called_hosts.h"
#include "shell/welcome_card.h"

namespace verlume {

void ConnectionActions::CallRemote(std::u16string_view commandLine) {
  namespace texts = connection_texts::call_remote;
  Run(Procedure::CallRemote, [this, commandLine] {
    const LeaveTexts leave = {.connected = texts::kConnected,
                              .waiting = texts::kWaiting,
                              .waitingTitle = texts::kTitle,
                              .calling = texts::kCalling,
                              .title = texts::kTitle};
    const std::optional<ConnectionState> agreed = AskToLeaveState(leave);
    if (!agreed) return;

    const std::optional<Callee> callee = CalleeIn(commandLine);
    if (!callee) return;
    const bool canBegin = PrepareKey(callee->key ? MustBePrivate::Yes : MustBePrivate::No);
    // A caller may have been accepted while host and port were being asked for.
    if (!canBegin || !MayStillLeaveState(leave, *agreed)) return;

    ResetConnection(state_, platform_);
    BeginAttempt(state_, platform_);
    TellOfKey();
    state_.RemoteHost = callee->host;
    state_.RemotePort = callee->port;
    state_.ExpectedKey = callee->key;
    RememberCall(state_, platform_, with_.settings);
    platform_.privacy.ExpectKey(callee->key);
    platform_.sckControl.SetRemoteHost(callee->host);
    platform_.sckControl.SetRemotePort(callee->port);
    platform_.sckControl.Connect();

    const std::u16string portText = DecimalText(callee->port);
    SetStatus(status_texts::kCalling.Fill(state_.IsGreek, {callee->host, portText}));
    platform_.frmMain.lblRemoteIP.SetCaption(callee->host);
    platform_.frmMain.lblRemotePort.SetCaption(portText);
    EnterState(state_, ConnectionState::Calling);
    ShowLamp(state_, platform_.frmMain);
    ShowWelcomeCard(state_, platform_);
    // Last: if this line cannot be written, the error report ends the call.
    WriteOutgoingText();
  });
}

std::optional<ConnectionActions::Callee> ConnectionActions::CalleeIn(
    std::u16string_view commandLine) {
  const auto parts = CommandParts(commandLine, 3);
  std::u16string host = parts.size() > 1 ? parts[1] : u"";
  if (host.empty()) host = AskHost();
  if (host.empty()) return std::nullopt;
  if (LooksLikeInvitation(host)) {
    const auto invitation = InvitationIn(host);
    if (invitation) return Callee{invitation->host, invitation->port, invitation->key};
    TellOfWrongInvitation();
    return std::nullopt;
  }
  std::optional<std::int32_t> port;
  if (parts.size() > 2 && IsPortNumber(parts[2], kLeastPort, kGreatestPort)) {
    port = PortNumberOf(parts[2]);
  }
  if (!port) port = AskRemotePort();
  if (!port) return std::nullopt;
  return Callee{std::move(host), *port, std::nullopt};
}

std::u16string ConnectionActions::AskHost() {
  namespace texts = connection_texts::call_remote;
  return platform_.dialogs.AskText(In(texts::kHostPrompt), In(texts::kHostTitle), u"");
}

std::optional<std::int32_t> ConnectionActions::AskRemotePort() {
  namespace texts = connection_texts::call_remote;
  for (;;) {
    const std::u16string typed =
        platform_.dialogs.AskText(In(texts::kPortPrompt), In(texts::kPortTitle), u"");
    if (typed.empty()) return std::nullopt;
    if (IsPortNumber(typed, kLeastPort, kGreatestPort)) return PortNumberOf(typed);
    platform_.dialogs.ShowMessage(Note(In(connection_texts::kWrongPort), In(texts::kPortTitle)));
  }
}

}  // namespace verlume
