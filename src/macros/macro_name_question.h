// Asking for the name of a macro.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/text_pair.h"

namespace verlume {

// Asks until the user types a valid macro name, and says why a name is not valid. Proposes
// `proposed` first and then the last answer. Appends the characters to avoid to the prompt. Returns
// "" when the user gives up or the program ends.
std::u16string AskMacroName(const AppState& state, Platform& platform, const TextPair& title,
                            std::u16string_view prompt, std::u16string_view proposed);

}  // namespace verlume
