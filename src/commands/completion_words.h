// Completions of a word that begins with "/": commands and macros.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "commands/command_table.h"
#include "platform/system.h"

namespace verlume {

struct Completion {
  std::u16string word;                  // as it is typed, with its "/"
  const CommandRow* command = nullptr;  // null for a macro, and for a computer to call
  bool isCall = false;                  // calls a computer again
  std::u16string nickname = {};         // of who answered there, if anybody did

  bool IsMacro() const { return !command && !isCall; }
  bool operator==(const Completion&) const = default;
};

// Whether the text is one word that begins with "/".
bool IsCommandWord(std::u16string_view text);

// All words that begin with `typed`, ignoring case and accents: first the commands of the language,
// then, if more than the "/" is typed, those of the other language, both in the table's order, then
// the macros in the order given. Where nothing but the "/" is typed, the commands that are used
// most stand first. A command with the same word as a macro is left out.
std::vector<Completion> CompletionsOf(std::u16string_view typed, bool isGreek,
                                      std::span<const std::u16string> macros, const Locale& locale);

// Whether the typed word already runs the completion. For a command its case does not matter, but
// its accents do; for a macro it must be exactly the file's name.
bool IsComplete(std::u16string_view typed, const Completion& completion, const Locale& locale);

}  // namespace verlume
