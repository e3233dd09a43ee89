// Where folders and macros lie.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "shell/app_state.h"

namespace verlume {

// The path with the separator appended unless it ends in it already.
std::u16string WithTrailingSeparator(std::u16string_view path, char16_t separator);

// True when a directory of that path is found; "" never exists. Never fails.
bool FolderExists(const FileSystem& files, std::u16string_view path);

// The file of a macro, and whether it is there. The extension is ".rtf", or written otherwise where
// only such a file is there (".RTF"). A name that would leave the macros folder (it holds a
// separator, or is "", "." or "..") has no file, and while no folder is chosen none has.
std::u16string MacroPath(const AppState& state, const FileSystem& files, std::u16string_view name);
bool MacroExists(const AppState& state, const FileSystem& files, std::u16string_view name);

}  // namespace verlume
