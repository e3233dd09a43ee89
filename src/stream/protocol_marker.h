// The size of the fixed text that opens every protocol message: NUL, 67 characters, NUL.
#pragma once

#include <cstddef>

namespace verlume::stream {

inline constexpr std::size_t kMarkerTextLength = 67;
inline constexpr std::size_t kMarkerLength = kMarkerTextLength + 2;

}  // namespace verlume::stream
