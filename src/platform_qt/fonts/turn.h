// How long text or fonts are worked on without a break before the window handles its events.
#pragma once

#include <chrono>

namespace verlume::qt {

// Less than the time of a screen frame, so that no key or click waits for long.
inline constexpr std::chrono::milliseconds kTurn{10};
// Not 0: a loop that handles events until none is waiting would not end before the text does.
inline constexpr std::chrono::milliseconds kPauseBetweenTurns{1};

}  // namespace verlume::qt
