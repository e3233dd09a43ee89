// How long the marker is that opens every protocol message (connection/wire_protocol.h).
#pragma once

#include <cstddef>

namespace verlume {

inline constexpr std::size_t kMarkerTextLength = 67;
// The text between two NULs.
inline constexpr std::size_t kMarkerLength = kMarkerTextLength + 2;

}  // namespace verlume
