// The errors of a POSIX system as run-time failures.
#pragma once

#include <string>

namespace verlume::qt {

// Throws the RunTimeFailure for errno after an operation on `path`.
[[noreturn]] void ThrowErrno(const std::string& path);

}  // namespace verlume::qt
