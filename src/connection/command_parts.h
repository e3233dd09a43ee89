// Splits a command line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace verlume {

// Splits the line at single blanks into at most `limit` parts (1 or more); the last part contains
// all further blanks. Two neighbouring blanks have an empty part between them. An empty line is one
// empty part.
std::vector<std::u16string> CommandParts(std::u16string_view line, std::size_t limit);

}  // namespace verlume
