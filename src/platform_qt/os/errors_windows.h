// Windows' errors as run-time failures.
#pragma once

#include <string>

namespace verlume::qt {

// Throws the RunTimeFailure for GetLastError after an operation on `path`.
[[noreturn]] void ThrowLastError(const std::string& path);
// The same for an error that a function has returned.
[[noreturn]] void ThrowError(unsigned long error, const std::string& path);

}  // namespace verlume::qt
