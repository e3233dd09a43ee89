#include "connection/command_parts.h"

namespace verlume {

std::vector<std::u16string> CommandParts(std::u16string_view line, std::size_t limit) {
  std::vector<std::u16string> parts;
  while (parts.size() + 1 < limit) {
    const std::size_t blank = line.find(u' ');
    if (blank == line.npos) break;
    parts.emplace_back(line.substr(0, blank));
    line.remove_prefix(blank + 1);
  }
  parts.emplace_back(line);
  return parts;
}

}  // namespace verlume
