// RTF -> run model. Made for input from the network: linear time, no recursion, no exceptions but
// for memory running out. What the limits (rtf_limits.h) cut is format, never text.
#pragma once

#include <string_view>

#include "richtext/document.h"

namespace verlume::richtext {

// True when the text begins with "{\rtf", which is what makes it RTF and not plain text.
bool LooksLikeRtf(std::u16string_view text);
bool LooksLikeRtf(std::string_view bytes);

// One run in RTF's default format; the line breaks (CR LF, CR, LF) are u'\n'.
Document ReadPlainText(std::u16string_view text);

// Reads RTF held in a string: characters above 127 stand for themselves. Text that does not look
// like RTF is plain text. The last \par of a document ends its last paragraph and adds no empty
// line.
Document ReadRtf(std::u16string_view rtf);

// The same for the bytes of a file: a byte above 127 is read in the code page of the font in
// force. Plain text is UTF-8; bytes that are not valid UTF-8 are taken as Windows-1253.
Document ReadRtf(std::string_view bytes);

}  // namespace verlume::richtext
