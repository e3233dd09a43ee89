// The text of an initialisation file: sections of key=value lines.
//
//   [Section]
//   Key=value   ; a line that starts with ";" is a comment, one without "=" says nothing
//
// Section and key names are compared without regard to (ASCII) letter case. Blanks around names and
// values, and one pair of quotes around a value, are not part of them. The first section of a name
// counts, and in it the first key of a name. No text is wrong: what is not understood is left
// alone. All operations take time linear in the text and never fail.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verlume::ini_text {

// The value of a key; a view into `text`. No value where section or key are missing.
std::optional<std::u16string_view> Read(std::u16string_view text, std::u16string_view section,
                                        std::u16string_view key);

// The text with the key set to the value. The key's line is replaced behind its "=", or a line is
// added at the end of the section (before the blank lines that trail it), or a section at the end
// of the text; everything else stays as it is. New lines end as the text's first line does, in
// "\r\n" where there is none. A line break or NUL in the value becomes a blank.
std::u16string Write(std::u16string_view text, std::u16string_view section, std::u16string_view key,
                     std::u16string_view value);

}  // namespace verlume::ini_text
