// Keeps a token short that has no end yet.
#pragma once

#include <string>
#include <string_view>

namespace verlume::richtext {

// RTF that begins with a token, which may go on behind its end, without what may be left out of the
// token: letters that make a word too long to be known, leading zeros, the line ends behind "\*",
// data. Whatever comes behind it, both read the same.
std::string ShortenedToken(std::string_view rtf);

}  // namespace verlume::richtext
