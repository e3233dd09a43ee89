// Texts in files of this machine. On Windows they are in the system's code page wherever that says
// all of the text, and in UTF-8 otherwise; elsewhere they are UTF-8. Nothing here fails.
#pragma once

#include <string>
#include <string_view>

namespace verlume::qt {

// The bytes of a text, for a file. A lone surrogate becomes '?'.
std::string EncodeLocal(std::u16string_view text);

// The text of a file's bytes. Bytes that are not valid UTF-8 are taken, on Windows by whole lines,
// as the system's code page; elsewhere, each byte by itself, as Windows-1253. A byte order mark is
// no part of the text.
std::u16string DecodeLocal(std::string_view bytes);

}  // namespace verlume::qt
