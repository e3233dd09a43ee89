// "/CANCEL" and "/CLOSE".
#include "connection/connection_actions.h"
#include "connection/connection_texts.h"
#include "connection/status_texts.h"

namespace verlume {

void ConnectionActions::CancelWaitOrCall() {
  namespace texts = connection_texts::cancel_wait_or_call;
  Run(Procedure::CancelWaitOrCall, [this] {
    const bool isGreek = state_.IsGreek;
    switch (StateOf(state_)) {
      case ConnectionState::Waiting:
        ResetConnection(state_, platform_);
        SetStatus(status_texts::kWaitCancelled.Fill(isGreek, {DecimalText(state_.LocalPort)}));
        WriteOutgoingText();
        break;
      case ConnectionState::Calling:
        ResetConnection(state_, platform_);
        SetStatus(status_texts::kCallCancelled.Fill(
            isGreek, {state_.RemoteHost, DecimalText(state_.RemotePort)}));
        WriteOutgoingText();
        break;
      case ConnectionState::Idle:
      case ConnectionState::Connected:
        platform_.dialogs.ShowMessage(Note(In(texts::kUseless), In(texts::kTitle)));
        platform_.frmMain.rtbCommands.SetText(u"");
        break;
    }
  });
}

void ConnectionActions::CloseConnection() {
  namespace texts = connection_texts::close_connection;
  Run(Procedure::CloseConnection, [this] {
    if (StateOf(state_) != ConnectionState::Connected) {
      platform_.dialogs.ShowMessage(Note(In(texts::kUseless), In(texts::kTitle)));
      return;
    }
    ResetConnection(state_, platform_);
    RecordClosedByUser();
    WriteOutgoingText();
  });
}

void ConnectionActions::HangUp() {
  Run(Procedure::CloseConnection, [this] {
    const ConnectionState left = StateOf(state_);
    const std::u16string address = platform_.sckControl.RemoteHostIP();
    const std::u16string port = DecimalText(platform_.sckControl.RemotePort());
    ResetConnection(state_, platform_);
    if (left == ConnectionState::Connected) return RecordClosedByUser();
    SetStatus(status_texts::kClosedByUser.Fill(state_.IsGreek, {address, port}));
  });
}

}  // namespace verlume
