// "/CALL host port".
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

    const auto parts = CommandParts(commandLine, 3);
    std::u16string host = parts.size() > 1 ? parts[1] : u"";
    if (host.empty()) host = AskHost();
    if (host.empty()) return;

    std::optional<std::int32_t> port;
    if (parts.size() > 2 && IsPortNumber(parts[2], kLeastPort, kGreatestPort)) {
      port = PortNumberOf(parts[2]);
    }
    if (!port) port = AskRemotePort();
    // A caller may have been accepted while host and port were being asked for.
    if (!port || !MayStillLeaveState(leave, *agreed)) return;

    ResetConnection(state_, platform_);
    BeginAttempt(state_, platform_);
    state_.RemoteHost = host;
    state_.RemotePort = *port;
    RememberCall(state_, platform_, with_.settings);
    platform_.sckControl.SetRemoteHost(host);
    platform_.sckControl.SetRemotePort(*port);
    platform_.sckControl.Connect();

    const std::u16string portText = DecimalText(*port);
    SetStatus(status_texts::kCalling.Fill(state_.IsGreek, {host, portText}));
    platform_.frmMain.lblRemoteIP.SetCaption(host);
    platform_.frmMain.lblRemotePort.SetCaption(portText);
    EnterState(state_, ConnectionState::Calling);
    ShowLamp(state_, platform_.frmMain);
    ShowWelcomeCard(state_, platform_);
    // Last: if this line cannot be written, the error report ends the call.
    WriteOutgoingText();
  });
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
