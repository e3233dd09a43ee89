// The fixed texts of what the user sees of who can call this computer, each with the element that
// shows it.
#pragma once

#include <vector>

#include "platform/reach_window.h"
#include "shell/language_texts.h"

namespace verlume {

// The menu entries and the bar of the main window.
std::vector<FixedText> ReachTexts(const MainWindow& frmMain);
std::vector<FixedText> ReachWindowTexts(const ReachWindow& frmReach);

// The columns of lstReachAddresses, in their order.
enum class ReachColumn { Address, WhoCanCall };

}  // namespace verlume
