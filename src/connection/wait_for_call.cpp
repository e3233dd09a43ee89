// "/WAIT port".
#include "connection/command_parts.h"
#include "connection/connection_actions.h"
#include "connection/connection_note.h"
#include "connection/connection_texts.h"
#include "connection/port_number.h"
#include "connection/status_texts.h"

namespace verlume {

void ConnectionActions::WaitForCall(std::u16string_view commandLine) {
  namespace texts = connection_texts::wait_for_call;
  Run(Procedure::WaitForCall, [this, commandLine] {
    const LeaveTexts leave = {.connected = texts::kConnected,
                              .waiting = texts::kWaiting,
                              .waitingTitle = texts::kPortTitle,
                              .calling = texts::kCalling,
                              .title = texts::kTitle};
    const std::optional<ConnectionState> agreed = AskToLeaveState(leave);
    if (!agreed) return;

    // Without a port the system chooses one.
    const auto parts = CommandParts(commandLine, 2);
    std::u16string portText = parts.size() > 1 ? parts[1] : u"0";
    if (!CorrectLocalPort(portText)) return;
    const std::int16_t port = PortNumberOf(portText);
    // The call may have been answered while the port was being asked for.
    if (!PrepareKey(MustBePrivate::No) || !MayStillLeaveState(leave, *agreed)) return;

    ResetConnection(state_, platform_);
    BeginAttempt(state_, platform_);
    state_.ExpectedKey.reset();
    platform_.privacy.ExpectKey(std::nullopt);
    TellOfKey();
    Listen(port);
    state_.LocalPort = platform_.sckControl.LocalPort();

    const std::u16string portInUse = DecimalText(state_.LocalPort);
    SetStatus(status_texts::kWaiting.Fill(state_.IsGreek, {portInUse}));
    platform_.frmMain.lblLocalPort.SetCaption(portInUse);
    EnterState(state_, ConnectionState::Waiting);
    ShowLamp(state_, platform_.frmMain);
    with_.port.WaitBegins();
    // Last: if this line cannot be written, the error report ends the wait.
    WriteOutgoingText();
  });
}

void ConnectionActions::Listen(std::int32_t port) {
  try {
    platform_.sckControl.SetLocalPort(port);
    platform_.sckControl.Listen();
  } catch (const RunTimeFailure& failure) {
    ExplainRefusedPort(state_, platform_, port, failure.number);
    throw;
  }
}

bool ConnectionActions::CorrectLocalPort(std::u16string& portText) {
  namespace texts = connection_texts::wait_for_call;
  while (!IsPortNumber(portText, kLeastPort, kGreatestPort)) {
    platform_.dialogs.ShowMessage(Note(In(connection_texts::kWrongPort), In(texts::kPortTitle)));
    portText = platform_.dialogs.AskText(In(texts::kPortPrompt), In(texts::kPortTitle), u"");
    if (portText.empty()) return false;
  }
  return true;
}

}  // namespace verlume
