// The files of macros.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "shell/app_state.h"

namespace verlume {

// The extension of a macro's file.
inline constexpr std::u16string_view kMacroExtension = u".rtf";

// Whether a macro can have this name. The name must not be empty, contain a separator (it could
// leave the macros folder) or begin with a dot (the file would be hidden).
bool CanNameAMacro(std::u16string_view name, char16_t separator);

// The path of a macro's file. The extension is ".rtf", or in other letter case (".RTF") if only
// such a file exists. The name is not checked: MacroExists does that, and IsValidMacroName for a
// new macro.
std::u16string MacroPath(const AppState& state, const FileSystem& files, std::u16string_view name);
// Whether that file exists. False if CanNameAMacro is false for the name, and while no folder is
// chosen.
bool MacroExists(const AppState& state, const FileSystem& files, std::u16string_view name);

}  // namespace verlume
