// Texts as they travel in private: UTF-8. Standard C++ only.
#pragma once

#include <string>
#include <string_view>

namespace verlume::stream {

// Half of a surrogate pair becomes U+FFFD.
std::string EncodeUtf8(std::u16string_view text);

// Each byte that belongs to no valid character becomes U+FFFD. A byte order mark is kept.
std::u16string DecodeUtf8(std::string_view bytes);

// The longest beginning of at most `limit` bytes that does not end inside a character. All `limit`
// bytes if they end inside what is no UTF-8.
std::string_view CutUtf8(std::string_view bytes, std::size_t limit);

// The bytes without a character at their end of which the rest has to come.
std::string_view WholeUtf8(std::string_view bytes);

}  // namespace verlume::stream
