// The own key, when a call or a wait begins.
#include <utility>

#include "connection/connection_actions.h"
#include "connection/connection_note.h"
#include "connection/own_key_texts.h"

namespace verlume {
namespace {

const NoteText& NoteOf(OwnKey found) {
  switch (found) {
    case OwnKey::Unreadable:
      return own_key_texts::kUnreadable;
    case OwnKey::Unwritable:
      return own_key_texts::kUnwritable;
    default:
      return own_key_texts::kUnavailable;
  }
}

}  // namespace

bool ConnectionActions::PrepareKey(MustBePrivate must) {
  namespace texts = own_key_texts;
  const bool isNeeded = must == MustBePrivate::Yes || state_.Offer == PrivacyOffer::Only;
  if (state_.Offer == PrivacyOffer::Never) {
    if (isNeeded) platform_.dialogs.ShowMessage(Refusal(In(texts::kTurnedOff), In(texts::kTitle)));
    return !isNeeded;
  }
  OwnKey found = platform_.privacy.PrepareOwnKey();
  // Once is enough where it can go on without.
  if (found == OwnKey::Unreadable && (!std::exchange(hasAskedAboutKey_, true) || isNeeded) &&
      UserAgrees(std::u16string(In(texts::kReplace)), texts::kTitle)) {
    found = platform_.privacy.ReplaceOwnKey();
  }
  state_.OwnKeyFound = found;
  if (found == OwnKey::Ready || !isNeeded) return true;
  const NoteText& note = NoteOf(found);
  std::u16string text(In(note.reason));
  text.append(u".\r\n\r\n").append(In(texts::kNeeded));
  platform_.dialogs.ShowMessage(Refusal(text, In(texts::kTitle)));
  return false;
}

void ConnectionActions::TellOfKey() {
  if (state_.Offer == PrivacyOffer::Never || state_.OwnKeyFound == OwnKey::Ready) return;
  ShowConnectionNote(state_, platform_, NoteOf(state_.OwnKeyFound));
}

}  // namespace verlume
