// Invitations: copied for others, and opened.
#include "connection/connection_actions.h"
#include "connection/invitation_texts.h"

namespace verlume {

void ConnectionActions::mnuCommInvite_Click() {
  namespace texts = invitation_texts;
  errors_.Guard(Procedure::Invite, [this] {
    const auto tell = [this](std::u16string_view text) {
      platform_.dialogs.ShowMessage(Note(text, In(texts::kTitle)));
    };
    if (!PrepareKey(MustBePrivate::Yes)) return;
    const auto key = platform_.privacy.OwnFingerprint();
    const bool isListening = StateOf(state_) == ConnectionState::Waiting &&
                             platform_.sckControl.State() == SocketState::Listening;
    if (!key || !isListening) return tell(In(texts::kWaitFirst));
    const std::u16string text = InvitationText({state_.Place.host, state_.Place.port, *key});
    platform_.clipboard.SetText(text);
    tell(texts::kCopied.Fill(state_.IsGreek, {text}));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

bool ConnectionActions::IsInvitationToCall(std::u16string_view line) const {
  return LooksLikeInvitation(line) && StateOf(state_) != ConnectionState::Connected;
}

void ConnectionActions::OpenInvitation(std::u16string_view text) {
  namespace texts = invitation_texts;
  errors_.Guard(Procedure::Invite, [this, text] {
    // Anything else on a command line is not for this program.
    if (!LooksLikeInvitation(text)) return;
    const auto invitation = InvitationIn(text);
    if (!invitation) return TellOfWrongInvitation();
    const std::u16string port = DecimalText(invitation->port);
    // It may come while the user types: no letter may answer.
    Message question = Question(texts::kAskToCall.Fill(state_.IsGreek, {invitation->host, port}),
                                In(texts::kTitle), Answer::No);
    question.unexpected = true;
    if (platform_.dialogs.ShowMessage(question) != Answer::Yes) return;
    const std::u16string line = u"/CALL " + InvitationText(*invitation);
    RunKeepingDraft(Procedure::CallRemote, line, [this, &line] { CallRemote(line); });
  });
}

void ConnectionActions::TellOfWrongInvitation() {
  platform_.dialogs.ShowMessage(
      Refusal(In(invitation_texts::kWrong), In(invitation_texts::kTitle)));
}

}  // namespace verlume
