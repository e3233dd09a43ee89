// The operating system's own system-information tool.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"

namespace verlume {

// Finds the tool, starts it and returns at once. Tells the user when there is no such tool or it
// cannot be started.
void StartSysInfo(const AppState& state, Platform& platform);

}  // namespace verlume
