// Paths of folders, and whether they exist.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace verlume {

// The path with the separator appended unless it ends in one already. Where that is `\`, `/` is one
// as well.
std::u16string WithTrailingSeparator(std::u16string_view path, char16_t separator);

// True when the path is a directory; false for "". Never fails.
bool FolderExists(const FileSystem& files, std::u16string_view path);

}  // namespace verlume
