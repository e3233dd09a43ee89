// The arguments that the program is started with.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/start/start_task.h"

namespace verlume {

// The exit status after wrong arguments.
inline constexpr int kWrongUsage = 2;

// A longer invitation was not made by this program.
inline constexpr std::size_t kLongestInvitation = 1024;

struct CommandLine {
  StartTask task;
  std::u16string folder;  // of the settings; "" for the usual one
  // With a status the program ends at once and prints the text: to standard output if the status
  // is 0, else to standard error. The text ends with a line end, and holds no character that could
  // change what a terminal shows besides.
  std::optional<int> status;
  std::u16string text;
};

// Reads the arguments without the program's name and without those of the toolkit.
CommandLine ReadCommandLine(const std::vector<std::u16string>& arguments, bool isGreek);

// The same for arguments as the system hands them over, in UTF-8.
std::vector<std::u16string> TextsOf(const std::vector<std::string_view>& arguments);

// A line for standard error, as ReadCommandLine makes them: the folder cannot be used.
std::u16string FolderRefusal(std::u16string_view folder, bool isGreek);

// Whether messages are in Greek. `environment` returns the value of a variable; null if there is
// none.
bool SpeaksGreek(const std::function<const char*(const char*)>& environment);

}  // namespace verlume
