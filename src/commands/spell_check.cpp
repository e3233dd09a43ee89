#include "commands/spell_check.h"

#include <algorithm>
#include <cstdint>

#include "platform/run_time_failure.h"
#include "shell/conversions.h"
#include "shell/folders.h"
#include "shell/setting_names.h"

namespace verlume {
namespace {

// A larger file, in bytes, is no list of words that were added one by one.
constexpr std::uint64_t kLargestWordsFile = 1 << 20;

std::vector<std::u16string> LinesOf(std::u16string_view text) {
  constexpr std::u16string_view kLineEnds = u"\r\n";
  std::vector<std::u16string> lines;
  for (std::size_t start = text.find_first_not_of(kLineEnds); start != text.npos;) {
    const std::size_t end = std::min(text.find_first_of(kLineEnds, start), text.size());
    lines.emplace_back(text.substr(start, end - start));
    start = text.find_first_not_of(kLineEnds, end);
  }
  return lines;
}

}  // namespace

void SpellCheck::Start() {
  SpellChecker& spelling = platform_.frmMain.spelling;
  platform_.frmMain.mnuToolsCheckSpelling.SetEnabled(spelling.HasDictionary());
  try {
    words_ = LinesOf(SavedText());
  } catch (const RunTimeFailure&) {
    errors_.LogException(Procedure::SpellCheck);
  }
  spelling.SetOwnWords(words_);
  ApplyChoice();
}

void SpellCheck::ApplyChoice() {
  SpellChecker& spelling = platform_.frmMain.spelling;
  spelling.SetOn(state_.CheckSpelling && spelling.HasDictionary());
}

void SpellCheck::mnuToolsCheckSpelling_Click() {
  errors_.Guard(Procedure::mnuToolsCheckSpelling_Click, [this] {
    state_.CheckSpelling = !state_.CheckSpelling;
    platform_.frmMain.mnuToolsCheckSpelling.SetChecked(state_.CheckSpelling);
    ApplyChoice();
    settings_.WriteSetting(setting_section::kGeneral, setting_key::kCheckSpelling,
                           BooleanText(state_.CheckSpelling));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void SpellCheck::AddWord(std::u16string_view word) {
  errors_.Guard(Procedure::SpellCheck, [this, word] {
    words_.emplace_back(word);
    platform_.frmMain.spelling.SetOwnWords(words_);
    const std::u16string saved = SavedText();
    const bool endsOpen = !saved.empty() && saved.back() != u'\n';
    platform_.files.AppendText(WordsFile(),
                               (endsOpen ? u"\n" : u"") + std::u16string(word) + u"\n");
  });
}

std::u16string SpellCheck::WordsFile() const {
  const std::u16string folder = platform_.application.SettingsFolder();
  return WithTrailingSeparator(folder, platform_.files.Separator()).append(u"Verlume.words");
}

std::u16string SpellCheck::SavedText() const {
  const FileSystem& files = platform_.files;
  const std::u16string path = WordsFile();
  if (!files.IsFile(path) || files.SizeOf(path) > kLargestWordsFile) return {};
  return files.ReadText(path);
}

}  // namespace verlume
