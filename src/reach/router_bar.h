// The bar above the command pane that asks, once a wait has begun, whether the router may be asked
// to pass calls on. Nothing waits for the answer.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"

namespace verlume {

// Shows the bar, and tells assistive tools.
void AskAboutRouter(AppState& state, const Platform& platform);
// The user has answered, or the wait has ended. Harmless while there is no bar.
void WithdrawRouterBar(AppState& state, const Platform& platform);
// Shows the bar, if it asks, in the language in force.
void ShowRouterBar(const AppState& state, const Platform& platform);

}  // namespace verlume
