// The program's arguments before there is a QApplication.
#pragma once

#include <string_view>
#include <vector>

namespace verlume::qt {

// The arguments without the program's name and without those that a QApplication takes for itself,
// with their values.
std::vector<std::string_view> OwnArguments(int argc, const char* const* argv);

}  // namespace verlume::qt
