// What all actions share, and the menu entries that run them.
#include "connection/connection_actions.h"

#include "connection/rule_texts.h"
#include "connection/status_texts.h"
#include "shell/dialogue_rule.h"
#include "shell/draft.h"

namespace verlume {

void ConnectionActions::Run(Procedure procedure, const std::function<void()>& action) {
  const ConnectionState before = StateOf(state_);
  // A failure ends the connection, call or wait, so the status line must not go on showing it.
  if (!errors_.Guard(procedure, action) && before != ConnectionState::Idle &&
      StateOf(state_) == ConnectionState::Idle) {
    SetStatus(u"");
  }
  platform_.frmMain.rtbCommands.SetFocus();
}

void ConnectionActions::RecordCommand(std::u16string_view commandWord) {
  state_.CommandLine = commandWord;
  state_.OutgoingText.clear();
}

void ConnectionActions::RunKeepingDraft(Procedure procedure, std::u16string_view commandWord,
                                        const std::function<void()>& action) {
  RecordCommand(commandWord);
  errors_.Guard(procedure, [this, &action] {
    const Draft draft(platform_);
    action();
    draft.Restore(state_.Font);
  });
}

std::optional<ConnectionState> ConnectionActions::AskToLeaveState(const LeaveTexts& texts) {
  // A call may be answered, or end, while the question is open. Then the answer no longer fits, and
  // the user is asked about the new state.
  for (;;) {
    const ConnectionState asked = StateOf(state_);
    const bool isGreek = state_.IsGreek;
    const std::u16string remotePort = DecimalText(state_.RemotePort);
    bool agrees = true;
    switch (asked) {
      case ConnectionState::Idle:
        break;
      case ConnectionState::Connected:
        platform_.dialogs.ShowMessage(Refusal(
            texts.connected.Fill(isGreek, {state_.RemoteAddress, remotePort}), In(texts.title)));
        return std::nullopt;
      case ConnectionState::Waiting:
        agrees = UserAgrees(texts.waiting.Fill(isGreek, {DecimalText(state_.LocalPort)}),
                            texts.waitingTitle);
        break;
      case ConnectionState::Calling:
        agrees = UserAgrees(texts.calling.Fill(isGreek, {remotePort}), texts.title);
        break;
    }
    if (!agrees) return std::nullopt;
    if (StateOf(state_) == asked) return asked;
  }
}

bool ConnectionActions::MayStillLeaveState(const LeaveTexts& texts, ConnectionState agreed) {
  return StateOf(state_) == agreed || AskToLeaveState(texts).has_value();
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
  AddDialogueRule(state_, platform_, rule_texts::kDisconnected);
  with_.log.AppendConnectionLine(status);
  state_.LogOpen = false;
}

void ConnectionActions::WriteOutgoingText() {
  with_.dialogue.WriteDialogueLine(state_.OutgoingText, Sender::Local, CommandPane::Clear);
}

void ConnectionActions::mnuCommCall_Click() {
  RunKeepingDraft(Procedure::CallRemote, u"/CALL", [this] { CallRemote(u"/CALL"); });
}

void ConnectionActions::mnuCommWait_Click() {
  RunKeepingDraft(Procedure::WaitForCall, u"/WAIT", [this] { WaitForCall(u"/WAIT"); });
}

void ConnectionActions::mnuCommCancel_Click() {
  RecordCommand(u"/CANCEL");
  CancelWaitOrCall();
}

void ConnectionActions::mnuCommClose_Click() {
  RunKeepingDraft(Procedure::CloseConnection, u"/CLOSE", [this] { CloseConnection(); });
}

void ConnectionActions::mnuCommRefresh_Click() {
  RunKeepingDraft(Procedure::RefreshLocalIP, u"/REFRESH", [this] { RefreshLocalIP(); });
}

void ConnectionActions::mnuToolsNick_Click() {
  RunKeepingDraft(Procedure::SetNickname, u"/NICK", [this] { SetNickname(u"/NICK"); });
}

}  // namespace verlume
