// The text of an initialisation file: sections of key=value lines.
//
//   [Section]
//   Key=value   ; a line that starts with ";" is a comment, one without "=" is ignored
//
// Section and key names are compared without regard to (ASCII) letter case. Blanks around names and
// values, and one pair of quotes around a value, are not part of them. If a name occurs twice, the
// first section counts, and in it the first key. Any text is accepted: what is not understood is
// left alone. All operations take time linear in the text and never fail.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verlume::ini_text {

// The value of a key, as a view into `text`. None when the section or the key is missing.
std::optional<std::u16string_view> Read(std::u16string_view text, std::u16string_view section,
                                        std::u16string_view key);

// The text with the key set to the value. Replaces what follows the key's "=", or adds a line at
// the end of the section (before its trailing blank lines), or adds the section at the end of the
// text; everything else stays as it is. New lines end like the text's first line, or in "\r\n" if
// it has none. A line break or NUL in the value becomes a blank.
std::u16string Write(std::u16string_view text, std::u16string_view section, std::u16string_view key,
                     std::u16string_view value);

}  // namespace verlume::ini_text
