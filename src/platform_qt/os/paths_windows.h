// Paths as Windows takes them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verlume::qt {

// The path with `\`, and in the form that may be longer than 260 characters if it is long. Throws a
// RunTimeFailure for one that is not UTF-8, or that Windows would take for something else than the
// file of that name: a device ("NUL", "con.txt"), a stream ("a:b"), a name without its last dot.
std::wstring NativePath(const std::string& path);

// Whether a file can have this name.
bool IsFileName(std::wstring_view name);

// None if it is not valid UTF-16.
std::optional<std::string> Utf8Of(std::wstring_view text);

}  // namespace verlume::qt
