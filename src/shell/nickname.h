// Nicknames as they are shown: on the status panel, in the dialogue, in the log and in file names.
//
// AppState::Nickname is what the user typed, because that is what the peer is sent; code that shows
// it calls ShowableNickname. A peer's nickname is never sent back, so AppState::RemoteNickname is
// made showable when it arrives.
#pragma once

#include <string>
#include <string_view>

namespace verlume {

// The first character of the text: two units for a surrogate pair, else one. The text must not be
// empty.
std::u16string_view FirstCharacter(std::u16string_view text);

// False for characters that are invisible themselves but change how others look: control
// characters, line and paragraph separators, bidirectional marks, embeddings, overrides and
// isolates, characters without a width, and half a surrogate pair.
bool IsShowable(std::u16string_view character);

// A visible escape for a character of one unit: "\x07" below U+0100, else "\u202E".
std::u16string EscapeOf(char16_t character);

// The nickname with every character that is not showable replaced by a visible escape such as
// "\x07" or "\u202E", and cut to kNicknameLimit characters. No escape and no pair is cut in two.
std::u16string ShowableNickname(std::u16string_view nickname);

}  // namespace verlume
