// Quiet rules in the dialogue pane: what happened to the connection, and when. They are painted,
// and are no part of the dialogue: neither the log nor a saved dialogue has them.
#pragma once

#include <initializer_list>
#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/text_pair.h"

namespace verlume {

// Puts "Connected, 09:05:30" below the last line, in the language that is in force whenever it is
// shown. The values are filled in for "%1", "%2"... `state` must outlive the pane's text.
void AddDialogueRule(const AppState& state, const Platform& platform, const TextPair& text,
                     std::initializer_list<std::u16string_view> values = {});

}  // namespace verlume
