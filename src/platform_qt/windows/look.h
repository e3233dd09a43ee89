// How the windows look: the system's own style, dark where the user wants that.
#pragma once

namespace verlume::qt {

// Call it before the QApplication is made.
void AskForLook();
// Call it when there is a QApplication, before the first window is made.
void TakeOnLook();

}  // namespace verlume::qt
