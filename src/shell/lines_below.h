// Shows how many lines have come below what is in view of the dialogue.
#pragma once

#include "platform/main_window.h"
#include "shell/app_state.h"

namespace verlume {

// The button "3 new lines", visible only while there are any.
void ShowLinesBelow(const AppState& state, const MainWindow& frmMain);

}  // namespace verlume
