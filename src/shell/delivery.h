// Which lines have reached the peer's machine, and which have not.
#pragma once

#include <cstddef>
#include <string>

#include "platform/main_window.h"
#include "shell/app_state.h"

namespace verlume {

// "2 lines were not delivered."
std::u16string UndeliveredText(std::size_t lines, bool isGreek);

// Shows the lines that wait by lblWaiting ("2 waiting", nothing when none does), and those that
// never arrived in the tool tip of lblStatus: of the last conversation, or of the one before it.
void ShowDelivery(const AppState& state, const MainWindow& frmMain);

}  // namespace verlume
