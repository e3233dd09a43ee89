#include "commands/completion_calls.h"

#include <string>

#include "commands/command_table.h"

namespace verlume {

bool IsCallLine(std::u16string_view text, const Locale& locale) {
  const std::size_t end = text.find(u' ');
  if (end == text.npos || !text.starts_with(u'/')) return false;
  const CommandRow* row = FindCommand(locale.UpperCase(text.substr(0, end)));
  return row && row->english == u"/CALL";
}

std::vector<Completion> CallsOf(std::u16string_view typed, std::span<const CalledHost> called,
                                const Locale& locale) {
  const std::size_t begin = typed.find(u' ') + 1;
  const std::u16string_view word = typed.substr(0, begin);
  const std::u16string sought = locale.UpperCase(typed.substr(begin));
  std::vector<Completion> found;
  for (const CalledHost& host : called) {
    const std::u16string parameters = CallParameters(host);
    const std::u16string upper = locale.UpperCase(parameters);
    if (upper == sought) return {};
    if (!upper.starts_with(sought)) continue;
    found.push_back({std::u16string(word) + parameters, nullptr, true, host.nickname});
  }
  return found;
}

}  // namespace verlume
