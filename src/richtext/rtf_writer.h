// Run model -> RTF as a rich-text box under code page 1253 writes it.
#pragma once

#include <string>
#include <string_view>

#include "richtext/document.h"

namespace verlume::richtext {

// Writes a whole document, all ASCII: Greek as lower-case \'xx of Windows-1253, any other
// character outside ASCII as \uN?, adjacent characters of one format with no control words between
// them. Ends at the closing brace. Reading it back gives an equal document but for unused fonts.
std::u16string WriteRtf(const Document& document);

// The same for files and the clipboard, which word processors read as well: it asks them to leave
// blanks that stand together as they are, where some would put wider ones between them.
std::u16string WriteRtfFile(const Document& document);

// Text as it stands inside an RTF document: \, { and } escaped, characters outside ASCII as
// WriteRtf writes them, line breaks as \par. For putting literal text into existing RTF.
std::u16string EscapeForRtf(std::u16string_view text);

}  // namespace verlume::richtext
