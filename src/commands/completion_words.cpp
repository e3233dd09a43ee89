#include "commands/completion_words.h"

#include <algorithm>

#include "commands/command_table.h"
#include "commands/text_search.h"

namespace verlume {

bool IsCommandWord(std::u16string_view text) {
  return text.starts_with(u'/') && text.find(u' ') == text.npos;
}

std::vector<Completion> CompletionsOf(std::u16string_view typed, bool isGreek,
                                      std::span<const std::u16string> macros,
                                      const Locale& locale) {
  std::vector<Completion> found;
  bool begins = false;
  TextSearch search(typed, locale, [&](const TextMatch& match) { begins |= match.start == 0; });
  const auto add = [&](std::u16string_view word, bool isMacro) {
    begins = false;
    search.Restart(0);
    search.Feed(word);
    search.Finish();
    if (begins) found.push_back({std::u16string(word), isMacro});
  };
  const auto addCommands = [&](bool inGreek) {
    for (const CommandRow& row : CommandTable()) {
      const std::u16string_view word = inGreek ? row.greek : row.english;
      // The interpreter looks for a macro first.
      const bool isMacrosToo = std::ranges::find(macros, word.substr(1)) != macros.end();
      if (!isMacrosToo) add(word, false);
    }
  };
  addCommands(isGreek);
  if (typed.size() > 1) addCommands(!isGreek);
  for (const std::u16string& name : macros) add(u"/" + name, true);
  return found;
}

bool IsComplete(std::u16string_view typed, const Completion& completion, const Locale& locale) {
  return completion.word == (completion.isMacro ? std::u16string(typed) : locale.UpperCase(typed));
}

}  // namespace verlume
