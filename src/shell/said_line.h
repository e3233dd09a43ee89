// A line as it crosses the wire: rich text, or an action line, which is a protocol message
// (connection/wire_protocol.h).
#pragma once

#include <string_view>

namespace verlume {

inline bool IsActionLine(std::u16string_view line, std::u16string_view marker) {
  return line.starts_with(marker);
}

// What the dialogue pane shows of a line of the user. The marker of an action line is followed by
// the letter of its kind.
inline std::u16string_view RtfOfLine(std::u16string_view line, std::u16string_view marker) {
  return IsActionLine(line, marker) ? line.substr(marker.size() + 1) : line;
}

}  // namespace verlume
