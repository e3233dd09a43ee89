#include "connection/connection_note.h"

#include "shell/again_bar.h"
#include "shell/delivery.h"
#include "shell/dialogue_rule.h"
#include "shell/welcome_card.h"

namespace verlume {
namespace {

const NoteText& TextOf(CallFailure failure) {
  switch (failure) {
    case CallFailure::None:
      return note_texts::kEndedByCallee;
    case CallFailure::UnknownHost:
      return note_texts::kUnknownHost;
    case CallFailure::Refused:
      return note_texts::kRefused;
    case CallFailure::Silent:
      return note_texts::kSilent;
    case CallFailure::Unreachable:
      return note_texts::kUnreachable;
    case CallFailure::Other:
      break;
  }
  return note_texts::kOther;
}

const NoteText& NoteTextOf(PrivacyFailure failure) {
  switch (failure) {
    case PrivacyFailure::NotOffered:
      return note_texts::kNotOffered;
    case PrivacyFailure::OtherKey:
      return note_texts::kOtherKey;
    case PrivacyFailure::Late:
      return note_texts::kLate;
    case PrivacyFailure::NoKey:
      return note_texts::kNoKey;
    default:
      return note_texts::kBroken;
  }
}

}  // namespace

void ShowConnectionNote(AppState& state, const Platform& platform, const NoteText& text,
                        std::initializer_list<std::u16string_view> values) {
  const FilledPair reason = text.reason.FillBoth(values);
  const FilledPair advice = text.advice.FillBoth(values);
  state.ConnectionNote = {reason.english + u". " + advice.english,
                          reason.greek + u". " + advice.greek};
  AddDialogueRule(state, platform, text.reason, values);
  ShowDelivery(state, platform.frmMain);
  ShowWelcomeCard(state, platform);
}

void BeginAttempt(AppState& state, const Platform& platform) {
  state.ConnectionNote = {};
  WithdrawAgain(state, platform);
  ShowDelivery(state, platform.frmMain);
}

void ExplainFailedCall(AppState& state, const Platform& platform) {
  ShowConnectionNote(state, platform, TextOf(platform.sckControl.LastCallFailure()),
                     {state.RemoteHost, DecimalText(state.RemotePort)});
}

void ExplainFailedWait(AppState& state, const Platform& platform) {
  ShowConnectionNote(state, platform, note_texts::kCallerLeft);
}

void ExplainPrivacyFailure(AppState& state, const Platform& platform, PrivacyFailure failure) {
  ShowConnectionNote(state, platform, NoteTextOf(failure));
}

void ExplainRefusedPort(AppState& state, const Platform& platform, std::int32_t port,
                        FailureNumber failure) {
  const std::u16string portText = DecimalText(port);
  if (failure == FailureNumber::AddressInUse) {
    ShowConnectionNote(state, platform, note_texts::kPortTaken, {portText});
  } else if (failure == FailureNumber::PermissionDenied) {
    ShowConnectionNote(state, platform, note_texts::kPortNotAllowed, {portText});
  }
}

}  // namespace verlume
