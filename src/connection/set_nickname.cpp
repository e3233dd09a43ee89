// "/NICK nickname".
#include <utility>

#include "connection/command_parts.h"
#include "connection/connection_actions.h"
#include "connection/connection_texts.h"
#include "richtext/characters.h"
#include "richtext/code_pages.h"
#include "shell/nickname.h"
#include "shell/setting_names.h"
#include "shell/trim.h"
#include "shell/who_is_who.h"

namespace verlume {
namespace {

// A NUL would end the nickname on the wire, and a line break would split the tag of every dialogue
// line. Nobody types control characters; they come only with pasted text.
std::u16string WithoutControlCharacters(std::u16string text) {
  std::erase_if(text, richtext::IsControlCharacter);
  return text;
}

// Every character that is shown as a blank.
constexpr std::u16string_view kBlanks =
    u" \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A\u202F\u205F"
    u"\u3000";

// The text as a nickname. Blanks alone are none: nobody could be told by them.
std::u16string NicknameIn(std::u16string text) {
  text = WithoutControlCharacters(std::move(text));
  return Trim(text, kBlanks).empty() ? std::u16string() : text;
}

// The nickname as the peer reads it: the wire has no other characters.
std::u16string AsItArrives(std::u16string_view nickname) {
  return richtext::DecodeGreek(richtext::EncodeGreek(nickname));
}

}  // namespace

void ConnectionActions::SetNickname(std::u16string_view commandLine) {
  Run(Procedure::SetNickname, [this, commandLine] {
    const auto parts = CommandParts(commandLine, 2);
    const std::u16string nickname = AskNickname(parts.size() > 1 ? parts[1] : u"");
    if (nickname.empty()) return;

    // Saved first: if that fails, the nickname does not change.
    with_.settings.WriteSetting(setting_section::kGeneral, setting_key::kNickname, nickname);
    const std::u16string before = WhoIsWho(state_);
    state_.Nickname = nickname;
    platform_.privacy.SetOwnName(nickname);
    platform_.frmMain.lblLocalNickname.SetCaption(ShowableNickname(nickname));
    ExplainRemoteNickname(state_, platform_.frmMain);
    with_.wire.SayWhoIsWho(before);
    WriteOutgoingText();
    with_.wire.SendNickname();
  });
}

// The candidate, or what the user types, until it is a valid nickname. "" when the user gave up.
std::u16string ConnectionActions::AskNickname(std::u16string candidate) {
  namespace texts = connection_texts::set_nickname;
  for (;;) {
    candidate = NicknameIn(candidate);
    if (candidate.empty()) {
      candidate = NicknameIn(
          platform_.dialogs.AskText(In(texts::kPrompt), In(texts::kTitle), state_.Nickname));
      if (candidate.empty()) return {};
    }
    if (candidate.size() > kNicknameLimit) {
      platform_.dialogs.ShowMessage(Note(In(texts::kTooLong), In(texts::kTitle)));
    } else if (!WantsAnother(candidate)) {
      return candidate;
    }
    candidate.clear();
  }
}

bool ConnectionActions::WantsAnother(const std::u16string& nickname) {
  namespace texts = connection_texts::set_nickname;
  // In private it arrives whole.
  if (platform_.privacy.State() == Privacy::Private) return false;
  const std::u16string arriving = AsItArrives(nickname);
  if (arriving == nickname) return false;
  const Message question =
      Question(texts::kNotCarried.Fill(state_.IsGreek, {ShowableNickname(nickname), arriving}),
               In(texts::kTitle), Answer::Yes);
  return platform_.dialogs.ShowMessage(question) == Answer::Yes;
}

}  // namespace verlume
