// "/NICK nickname".
#include "connection/command_parts.h"
#include "connection/connection_actions.h"
#include "connection/connection_texts.h"
#include "richtext/characters.h"
#include "shell/nickname.h"
#include "shell/setting_names.h"

namespace verlume {
namespace {

// A NUL would end the nickname on the wire, and a line break would split the tag of every dialogue
// line. Nobody types control characters; they come only with pasted text.
std::u16string WithoutControlCharacters(std::u16string text) {
  std::erase_if(text, richtext::IsControlCharacter);
  return text;
}

}  // namespace

void ConnectionActions::SetNickname(std::u16string_view commandLine) {
  Run(Procedure::SetNickname, [this, commandLine] {
    const auto parts = CommandParts(commandLine, 2);
    const std::u16string nickname = AskNickname(parts.size() > 1 ? parts[1] : u"");
    if (nickname.empty()) return;

    // Saved first: if that fails, the nickname does not change.
    with_.settings.WriteSetting(setting_section::kGeneral, setting_key::kNickname, nickname);
    state_.Nickname = nickname;
    platform_.frmMain.lblLocalNickname.SetCaption(ShowableNickname(nickname));
    WriteOutgoingText();
    with_.wire.SendNickname();
  });
}

// The candidate, or what the user types, until it is a valid nickname. "" when the user gave up.
std::u16string ConnectionActions::AskNickname(std::u16string candidate) {
  namespace texts = connection_texts::set_nickname;
  for (;;) {
    candidate = WithoutControlCharacters(candidate);
    if (candidate.empty()) {
      candidate = WithoutControlCharacters(
          platform_.dialogs.AskText(In(texts::kPrompt), In(texts::kTitle), state_.Nickname));
      if (candidate.empty()) return {};
    }
    if (candidate.size() <= kNicknameLimit) return candidate;
    platform_.dialogs.ShowMessage(Note(In(texts::kTooLong), In(texts::kTitle)));
    candidate.clear();
  }
}

}  // namespace verlume
