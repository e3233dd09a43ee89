// Long work on a text box is done in turns, between the events of the window.
#pragma once

#include <QtGlobal>

namespace verlume::qt {

// Shorter than a frame of the screen, so that no key or click waits for long; and a pause, so that
// one who handles the events that wait finds an end of them.
inline constexpr qint64 kTurnMilliseconds = 10;
inline constexpr int kPauseMilliseconds = 1;

}  // namespace verlume::qt
