// The marker that opens every protocol message (connection/wire_protocol.h).
#pragma once

#include <cstddef>
#include <string_view>

namespace verlume {

inline constexpr std::size_t kMarkerTextLength = 67;
// The text between two NULs.
inline constexpr std::size_t kMarkerLength = kMarkerTextLength + 2;

// The marker as it crosses the wire.
inline constexpr std::string_view kMarkerBytes{
    "\0"
    "maet emulreV eht yb edaMemulreV"
    " \xF2\xE1\xE4\xDC\xEC\xEF \xF2\xE7\xF4 \xE1\xDF\xE3\xF1\xF5\xEF\xE9\xEC\xE7\xC4"
    "emulreVemulreV"
    "\0",
    kMarkerLength};

}  // namespace verlume
