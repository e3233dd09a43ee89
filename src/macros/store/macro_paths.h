// Where macros lie.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "shell/app_state.h"

namespace verlume {

// What a macro's file has behind the name.
inline constexpr std::u16string_view kMacroExtension = u".rtf";

// Whether a file in the macros folder may be a macro of that name: the name would not leave the
// folder (it holds no separator), and is neither empty nor that of a hidden file (it begins with a
// dot).
bool CanNameAMacro(std::u16string_view name, char16_t separator);

// The file of a macro. The extension is ".rtf", or written otherwise (".RTF") where only such a
// file is there. The name is not checked: MacroExists does that, and IsValidMacroName for a new
// one.
std::u16string MacroPath(const AppState& state, const FileSystem& files, std::u16string_view name);
// Whether that file is there. Never for a name that can name no macro, nor while no folder is
// chosen.
bool MacroExists(const AppState& state, const FileSystem& files, std::u16string_view name);

}  // namespace verlume
