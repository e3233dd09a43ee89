// Texts of files in a code page of Windows.
#pragma once

#include <string>
#include <string_view>

namespace verlume::qt {

// The text in the code page or, if reading it would not give the same text, in UTF-8.
std::string EncodeInCodePage(std::u16string_view text, unsigned codePage);
// Each line by itself: a log may have lines of both kinds. One that is valid UTF-8 is taken as
// such.
std::u16string DecodeInCodePage(std::string_view bytes, unsigned codePage);

}  // namespace verlume::qt
