// What the actions share, and the menu entries that run them.
#include "connection/connection_actions.h"

#include "connection/status_texts.h"

namespace verlume {

void ConnectionActions::Run(Procedure procedure, const std::function<void()>& action) {
  const ConnectionState before = StateOf(state_);
  // A failure ends whatever there was. The status line must not go on telling of it.
  if (!errors_.Guard(procedure, action) && before != ConnectionState::Idle &&
      StateOf(state_) == ConnectionState::Idle) {
    SetStatus(u"");
  }
  platform_.frmMain.rtbCommands.SetFocus();
}

std::u16string_view ConnectionActions::RecordCommand(std::u16string_view commandWord) {
  state_.CommandLine = commandWord;
  state_.OutgoingText.clear();
  return commandWord;
}

bool ConnectionActions::MayLeaveState(const LeaveTexts& texts, ConnectionState& agreed) {
  // A call may be answered, or end, while its question is open: then the answer is to a question
  // that no longer fits, and the state that has come instead is asked about.
  for (;;) {
    agreed = StateOf(state_);
    const bool isGreek = state_.IsGreek;
    const std::u16string remotePort = DecimalText(state_.RemotePort);
    bool agrees = true;
    switch (agreed) {
      case ConnectionState::Idle:
        break;
      case ConnectionState::Connected:
        platform_.dialogs.ShowMessage(Refusal(
            texts.connected.Fill(isGreek, {state_.RemoteAddress, remotePort}), In(texts.title)));
        return false;
      case ConnectionState::Waiting:
        agrees = UserAgrees(texts.waiting.Fill(isGreek, {DecimalText(state_.LocalPort)}),
                            texts.waitingTitle);
        break;
      case ConnectionState::Calling:
        agrees = UserAgrees(texts.calling.Fill(isGreek, {remotePort}), texts.title);
        break;
    }
    if (!agrees) return false;
    if (StateOf(state_) == agreed) return true;
  }
}

bool ConnectionActions::MayStillLeaveState(const LeaveTexts& texts, ConnectionState agreed) {
  return StateOf(state_) == agreed || MayLeaveState(texts, agreed);
}

bool ConnectionActions::UserAgrees(const std::u16string& text, const TextPair& title) {
  return platform_.dialogs.ShowMessage(Question(text, In(title), Answer::No)) == Answer::Yes;
}

void ConnectionActions::SetStatus(std::u16string_view text) {
  platform_.frmMain.lblStatus.SetCaption(text);
}

void ConnectionActions::RecordClosedByUser() {
  const std::u16string status = status_texts::kClosedByUser.Fill(
      state_.IsGreek, {state_.RemoteAddress, DecimalText(state_.RemotePort)});
  SetStatus(status);
  with_.log.AppendConnectionLine(status);
  state_.LogOpen = false;
}

void ConnectionActions::WriteOutgoingText() {
  with_.dialogue.WriteDialogueLine(state_.OutgoingText, Sender::Local, CommandPane::Clear);
}

void ConnectionActions::mnuCommCall_Click() {
  CallRemote(RecordCommand(u"/CALL"));
}

void ConnectionActions::mnuCommWait_Click() {
  WaitForCall(RecordCommand(u"/WAIT"));
}

void ConnectionActions::mnuCommCancel_Click() {
  RecordCommand(u"/CANCEL");
  CancelWaitOrCall();
}

void ConnectionActions::mnuCommClose_Click() {
  RecordCommand(u"/CLOSE");
  CloseConnection();
}

void ConnectionActions::mnuCommRefresh_Click() {
  RecordCommand(u"/REFRESH");
  RefreshLocalIP();
}

void ConnectionActions::mnuToolsNick_Click() {
  SetNickname(RecordCommand(u"/NICK"));
}

}  // namespace verlume
