// Asking for the name of a macro.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/text_pair.h"

namespace verlume {

// Asks until the user types what could be a macro's name, and tells where it could not; each answer
// is proposed the next time, and `proposed` the first. The prompt goes on with the characters to
// avoid. "" when the user gives up or the program ends.
std::u16string AskMacroName(const AppState& state, Platform& platform, const TextPair& title,
                            std::u16string_view prompt, std::u16string_view proposed);

}  // namespace verlume
