// How long texts are put in at a stretch, before the window's own events have their turn.
#pragma once

#include <chrono>

namespace verlume::qt {

// Shorter than a frame of the screen, so that no key or click waits for long.
inline constexpr std::chrono::milliseconds kTurn{10};
// Not 0: who handles the events that wait has to find an end of them.
inline constexpr std::chrono::milliseconds kPauseBetweenTurns{1};

}  // namespace verlume::qt
