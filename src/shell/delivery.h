// Shows which lines have not reached the peer's machine.
#pragma once

#include <cstddef>
#include <string>

#include "platform/main_window.h"
#include "shell/app_state.h"

namespace verlume {

// "2 lines were not delivered."
std::u16string UndeliveredText(std::size_t lines, bool isGreek);

// Shows in lblWaiting how many lines wait ("2 waiting", or nothing), and in the tool tip of
// lblStatus why the last call or wait has failed, how many lines of the last conversation, or of
// the one before it, were never delivered, and whose calls are turned away.
void ShowDelivery(const AppState& state, const MainWindow& frmMain);

}  // namespace verlume
