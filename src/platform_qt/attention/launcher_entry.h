// The number beside the program's icon in docks and task bars.
#pragma once

namespace verlume::qt {

// Shows the number, or none if it is 0, where a dock listens for that on the session's D-Bus.
// Returns at once.
void ShowCountInLauncher(int count);

}  // namespace verlume::qt
