// How a start of the program asks the copy that runs already: as the arguments that it was given.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "shell/start/start_task.h"

namespace verlume {

// A longer text was not written by this program.
inline constexpr std::size_t kLongestHandOver = 4096;  // bytes

// "" for no task.
std::string HandOverText(const StartTask& task);

// None unless the text is what HandOverText makes of a task. Everything in it is checked like the
// command line.
std::optional<StartTask> HandedOver(std::string_view text);

}  // namespace verlume
