// Files of the system that are short and are read at once.
#pragma once

#include <cstddef>
#include <string>

namespace verlume::qt {

constexpr std::size_t kSmallFile = std::size_t{64} << 10;  // bytes

// The first kSmallFile bytes. "" when there is no such file, it may not be read, or it is none that
// is read without waiting (a pipe, a device).
std::string ReadSmallFile(const std::string& path);

}  // namespace verlume::qt
