// Nicknames as they are shown: on the status panel, in the tags and texts of the dialogue, in the
// log and, made fit for one, in a file name.
//
// AppState::Nickname stays as the user has it, for that is what the peer is sent; whatever shows it
// asks ShowableNickname. A peer's nickname is never sent back as one, so AppState::RemoteNickname
// is showable from the moment it arrives.
#pragma once

#include <string>
#include <string_view>

namespace verlume {

// The character that the text begins with: two units of a pair, else one. The text is not empty.
std::u16string_view FirstCharacter(std::u16string_view text);

// False for a character that is not seen itself but changes what is: control characters, line and
// paragraph separators, the marks, embeddings, overrides and isolates of bidirectional text,
// characters without a width, half a surrogate pair.
bool IsShowable(std::u16string_view character);

// The nickname with every character that is not showable as a visible escape, "\x07" or "\u202E",
// and cut to kNicknameLimit characters, of which no escape and no pair is cut in two.
std::u16string ShowableNickname(std::u16string_view nickname);

}  // namespace verlume
