// The single-byte code pages that RTF and the wire use. A byte that a page leaves undefined decodes
// to the code point its system gives it (a C1 control or a private-use character), so that decoding
// and encoding again gives the same bytes.
#pragma once

#include <string>
#include <string_view>

namespace verlume::richtext {

// True for 1250 to 1258, 437, 850 and 10000.
bool IsKnownCodePage(int codePage);

// One byte under a known code page; unknown pages decode as Windows-1252.
char16_t DecodeByte(unsigned char byte, int codePage);

// The characters of the bytes 0x80 to 0xFF of a code page (128 of them, for as long as the program
// runs); of Windows-1252 for an unknown page.
const char16_t* UpperHalf(int codePage);

// The code page whose upper half this is.
int CodePageOf(const char16_t* upperHalf);

// The byte of Windows-1253 for a character outside ASCII, or 0 where the page has none.
unsigned char GreekByte(char16_t character);

// The code page of a font's character set (RTF's \fcharset), or 0 where the charset names none.
int CodePageOfCharset(int charset);

// Text <-> bytes of Windows-1253, the code page of the wire. A character outside the page becomes
// '?', a surrogate pair one '?'.
std::string EncodeGreek(std::u16string_view text);
std::u16string DecodeGreek(std::string_view bytes);

// UTF-8 -> text; bytes that are not valid UTF-8 are taken, each, as Windows-1253. A byte order mark
// at the start is no part of the text.
std::u16string DecodeUtf8OrGreek(std::string_view bytes);

}  // namespace verlume::richtext
