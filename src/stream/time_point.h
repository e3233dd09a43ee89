// The time of everything that happens to a connection: a clock that never goes back.
#pragma once

#include <chrono>

namespace verlume::stream {

using TimePoint = std::chrono::steady_clock::time_point;

}  // namespace verlume::stream
