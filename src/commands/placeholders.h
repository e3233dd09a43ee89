// Nicknames put into a line that is about to be sent: the placeholders $l and $r in all their
// spellings, and the word of the action command.
//
// The line is RTF, and only its text is searched: never a control word, the font table or another
// part that is not shown. Everything happens in one pass, and a nickname goes in as literal text;
// so one that holds a placeholder, "/me" or RTF's own characters shows as it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verlume {

struct Nicknames {
  std::u16string_view local;
  std::optional<std::u16string_view> remote;  // none: the peer's placeholders stay as typed
};

std::u16string ExpandPlaceholders(std::u16string_view rtf, const Nicknames& nicknames);

// The same, and the first occurrence of the action word becomes the local nickname. `typedWord` is
// the word in the spelling in which the line has it; one that is no spelling of the action word
// replaces nothing.
std::u16string ExpandActionLine(std::u16string_view rtf, std::u16string_view typedWord,
                                const Nicknames& nicknames);

}  // namespace verlume
