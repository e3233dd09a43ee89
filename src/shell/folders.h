// Paths of folders, and whether they are there.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace verlume {

// The path with the separator appended unless it ends in it already.
std::u16string WithTrailingSeparator(std::u16string_view path, char16_t separator);

// True when a directory of that path is found; "" never exists. Never fails.
bool FolderExists(const FileSystem& files, std::u16string_view path);

}  // namespace verlume
