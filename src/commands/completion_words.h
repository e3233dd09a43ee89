// What a word that begins with "/" can become: commands, and macros by their names.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system.h"

namespace verlume {

struct Completion {
  std::u16string word;  // as it is typed, with its "/"
  bool isMacro = false;

  bool operator==(const Completion&) const = default;
};

// Whether the text is one word that begins with "/".
bool IsCommandWord(std::u16string_view text);

// Whatever begins as `typed` does, case and accents apart: the commands of the language, then,
// where more than the "/" is typed, those of the other one, both in the table's order, then the
// macros in theirs. A command whose word is also a macro's is the macro.
std::vector<Completion> CompletionsOf(std::u16string_view typed, bool isGreek,
                                      std::span<const std::u16string> macros, const Locale& locale);

// Whether the completion runs by what is typed as it stands. The case of a command's word does not
// matter, its accents do; a macro's name is to be the file's.
bool IsComplete(std::u16string_view typed, const Completion& completion, const Locale& locale);

}  // namespace verlume
