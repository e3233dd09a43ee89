#include "commands/completion_words.h"

#include <algorithm>

#include "commands/text_search.h"

namespace verlume {
namespace {

// The commands that are used most, by their English words.
constexpr std::u16string_view kUsedMost[] = {u"/WAIT", u"/CALL", u"/NICK", u"/ME", u"/CLOSE"};

// The rows of the command table.
std::vector<const CommandRow*> Rows(bool usedMostFirst) {
  std::vector<const CommandRow*> rows;
  for (const CommandRow& row : CommandTable()) rows.push_back(&row);
  if (!usedMostFirst) return rows;
  const auto rank = [](const CommandRow* row) {
    return std::ranges::find(kUsedMost, row->english) - std::begin(kUsedMost);
  };
  std::ranges::stable_sort(rows, {}, rank);
  return rows;
}

}  // namespace

bool IsCommandWord(std::u16string_view text) {
  return text.starts_with(u'/') && text.find(u' ') == text.npos;
}

std::vector<Completion> CompletionsOf(std::u16string_view typed, bool isGreek,
                                      std::span<const std::u16string> macros,
                                      const Locale& locale) {
  std::vector<Completion> found;
  bool begins = false;
  TextSearch search(typed, locale, [&](const TextMatch& match) { begins |= match.start == 0; });
  const auto add = [&](std::u16string_view word, const CommandRow* command) {
    begins = false;
    search.Restart(0);
    search.Feed(word);
    search.Finish();
    if (begins) found.push_back({std::u16string(word), command});
  };
  const bool isSlashAlone = typed == u"/";
  const auto addCommands = [&](bool inGreek) {
    for (const CommandRow* row : Rows(isSlashAlone)) {
      const std::u16string_view word = inGreek ? row->greek : row->english;
      // The interpreter looks for a macro first.
      const bool isMacrosToo = std::ranges::find(macros, word.substr(1)) != macros.end();
      if (!isMacrosToo) add(word, row);
    }
  };
  addCommands(isGreek);
  if (!isSlashAlone) addCommands(!isGreek);
  for (const std::u16string& name : macros) add(u"/" + name, nullptr);
  return found;
}

bool IsComplete(std::u16string_view typed, const Completion& completion, const Locale& locale) {
  return completion.word ==
         (completion.IsMacro() ? std::u16string(typed) : locale.UpperCase(typed));
}

}  // namespace verlume
