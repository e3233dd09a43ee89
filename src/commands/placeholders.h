// Puts nicknames into a line that is about to be sent: in place of the placeholders $l and $r in
// all their spellings, and of the word of the action command.
//
// The line is RTF, and only its text is searched: never a control word, the font table or another
// part that is not shown. Everything happens in one pass, and a nickname is inserted as literal
// text, so one that contains a placeholder, "/me" or RTF's own characters is shown as it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verlume {

struct Nicknames {
  std::u16string_view local;
  std::optional<std::u16string_view> remote;  // none: placeholders for it stay as typed
};

std::u16string ExpandPlaceholders(std::u16string_view rtf, const Nicknames& nicknames);

// The same, and the first occurrence of the action word becomes the local nickname. `typedWord` is
// the word exactly as the line spells it; if it is not a spelling of the action word, nothing is
// replaced.
std::u16string ExpandActionLine(std::u16string_view rtf, std::u16string_view typedWord,
                                const Nicknames& nicknames);

}  // namespace verlume
