// "/EXIT": whether the program may end. It closes nothing itself.
#include "connection/connection_actions.h"
#include "connection/connection_texts.h"

namespace verlume {

void ConnectionActions::ConfirmExit() {
  namespace texts = connection_texts::confirm_exit;
  Run(Procedure::ConfirmExit, [this] {
    state_.ExitConfirmed = false;
    // A call may be answered, or end, while the question is open. Agreeing to give up a wait is not
    // agreeing to hang up on a peer, so a new state is asked about again.
    ConnectionState asked;
    do {
      asked = StateOf(state_);
      if (asked == ConnectionState::Idle) break;
      if (!UserAgrees(ExitQuestion(asked), texts::kTitle)) {
        platform_.frmMain.rtbCommands.SetText(u"");
        return;
      }
    } while (StateOf(state_) != asked);

    if (asked == ConnectionState::Connected) RecordClosedByUser();
    state_.ExitConfirmed = true;
  });
}

std::u16string ConnectionActions::ExitQuestion(ConnectionState asked) const {
  namespace texts = connection_texts::confirm_exit;
  const bool isGreek = state_.IsGreek;
  const std::u16string remotePort = DecimalText(state_.RemotePort);
  std::u16string text;
  if (asked == ConnectionState::Waiting) {
    text = texts::kWaiting.Fill(isGreek, {DecimalText(state_.LocalPort)});
  } else if (asked == ConnectionState::Calling) {
    text = texts::kCalling.Fill(isGreek, {state_.RemoteHost, remotePort});
  } else {
    text = texts::kConnected.Fill(isGreek, {state_.RemoteAddress, remotePort});
  }
  text += In(texts::kQuestion);
  return text;
}

}  // namespace verlume
