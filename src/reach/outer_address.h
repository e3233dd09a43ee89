// The router's outer address, in the tool tip of the local one.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"

namespace verlume {

// To be called whenever the router has said something else, or the language is another.
void ShowOuterAddress(const AppState& state, const Platform& platform);

}  // namespace verlume
