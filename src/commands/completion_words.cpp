#include "commands/completion_words.h"

#include <algorithm>
#include <utility>

namespace verlume {
namespace {

std::u16string LettersOf(std::u16string_view text, const Locale& locale) {
  std::u16string letters;
  for (const char16_t c : text) {
    if (const char16_t letter = locale.BaseLetter(c)) letters += letter;
  }
  return letters;
}

// Looks no further than the first letter that differs: at every key each word is compared.
bool Begins(std::u16string_view word, std::u16string_view letters, const Locale& locale) {
  for (const char16_t c : word) {
    if (letters.empty()) break;
    const char16_t letter = locale.BaseLetter(c);
    if (letter == 0) continue;
    if (letter != letters.front()) return false;
    letters.remove_prefix(1);
  }
  return letters.empty();
}

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
  const std::u16string letters = LettersOf(typed, locale);
  const bool isSlashAlone = typed == u"/";
  const auto addCommands = [&](bool inGreek) {
    for (const CommandRow* row : Rows(isSlashAlone)) {
      const std::u16string_view word = inGreek ? row->greek : row->english;
      if (!Begins(word, letters, locale)) continue;
      // The interpreter looks for a macro first.
      const bool isMacrosToo = std::ranges::find(macros, word.substr(1)) != macros.end();
      if (!isMacrosToo) found.push_back({std::u16string(word), row});
    }
  };
  addCommands(isGreek);
  if (!isSlashAlone) addCommands(!isGreek);
  for (const std::u16string& name : macros) {
    std::u16string word = u"/" + name;
    if (Begins(word, letters, locale)) found.push_back({std::move(word), nullptr});
  }
  return found;
}

bool IsComplete(std::u16string_view typed, const Completion& completion, const Locale& locale) {
  return completion.word ==
         (completion.IsMacro() ? std::u16string(typed) : locale.UpperCase(typed));
}

}  // namespace verlume
