#include "commands/completion.h"

#include <algorithm>
#include <utility>

#include "commands/completion_calls.h"
#include "platform/char_code.h"
#include "platform/run_time_failure.h"
#include "shell/conversions.h"
#include "shell/scoped_flag.h"
#include "shell/setting_names.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

// Longer than any file name. A longer line cannot be a command or macro, and is not examined at
// every key.
constexpr std::size_t kLongestWord = 256;

constexpr TextPair kMacroRow = {u"%1   (macro)", u"%1   (μακροεντολή)"};

// The command pane turns a line break into a blank, so a name with one could not be typed.
bool FitsIntoOneLine(std::u16string_view name) {
  return std::ranges::none_of(
      name, [](char16_t c) { return c < u' ' || c == u'\u2028' || c == u'\u2029'; });
}

std::u16string RowText(const Completion& row, bool isGreek) {
  if (row.isMacro) return kMacroRow.Fill(isGreek, {row.word});
  return row.nickname.empty() ? row.word : row.word + u"   (" + row.nickname + u")";
}

}  // namespace

void CommandCompletion::rtbCommands_Change() {
  if (updating_) return;
  errors_.Guard(Procedure::CommandCompletion, [this] { FollowPane(); });
}

void CommandCompletion::FollowPane() {
  const RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (!state_.SuggestCommands || pane.TextLength() > kLongestWord) return Close();
  const std::u16string text = pane.Text();
  if (IsCallLine(text, platform_.locale)) return FollowCallLine(text);
  if (!IsCommandWord(text)) return Close();
  typed_ = text;
  if (!macros_) macros_ = RunnableMacros();
  rows_ = CompletionsOf(typed_, state_.IsGreek, *macros_, platform_.locale);
  const bool isComplete = rows_.size() == 1 && IsComplete(typed_, rows_.front(), platform_.locale);
  if (rows_.empty() || isComplete) return Hide();
  ShowRows();
}

void CommandCompletion::FollowCallLine(const std::u16string& text) {
  typed_ = text;
  rows_ = CallsOf(typed_, state_.CalledHosts, platform_.locale);
  if (rows_.empty()) return Hide();
  ShowRows();
}

void CommandCompletion::ShowRows() {
  const CompletionList& list = platform_.frmMain.completionList;
  list.lstCompletions.Clear();
  for (const Completion& row : rows_) {
    list.lstCompletions.Append(RowText(row, state_.IsGreek));
  }
  list.lstCompletions.ScrollToTop(0);
  list.fraCompletions.SetVisible(true);
}

void CommandCompletion::Hide() {
  platform_.frmMain.completionList.fraCompletions.SetVisible(false);
}

void CommandCompletion::Close() {
  Hide();
  macros_.reset();
}

void CommandCompletion::rtbCommands_KeyDown(int& keyCode, int shift) {
  const bool isArrow = keyCode == key_code::kDown || keyCode == key_code::kUp;
  if (!isArrow || shift != 0) return;
  if (!platform_.frmMain.completionList.fraCompletions.Visible()) return;
  errors_.Guard(Procedure::CommandCompletion, [this, &keyCode] {
    const int step = keyCode == key_code::kDown ? 1 : -1;
    keyCode = char_code::kSwallowed;
    Walk(step);
  });
}

void CommandCompletion::Walk(int step) {
  ListBox& list = platform_.frmMain.completionList.lstCompletions;
  // The typed word comes before the first row, as row -1.
  const int places = static_cast<int>(rows_.size()) + 1;
  const int row = (list.SelectedIndex() + 1 + step + places) % places - 1;
  list.Select(row);
  if (row < 0) list.ScrollToTop(0);
  PutIntoPane(row < 0 ? typed_ : rows_[static_cast<std::size_t>(row)].word);
}

// The word gets the style at the insertion point, as if it were typed there.
void CommandCompletion::PutIntoPane(std::u16string_view word) {
  const ScopedFlag updating(updating_);
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  pane.SetText(word);
  pane.Select(pane.TextLength(), 0);
}

void CommandCompletion::rtbCommands_LostFocus() {
  errors_.Guard(Procedure::CommandCompletion, [this] { Close(); });
}

void CommandCompletion::lstCompletions_Click() {
  errors_.Guard(Procedure::CommandCompletion, [this] {
    const auto row =
        static_cast<std::size_t>(platform_.frmMain.completionList.lstCompletions.SelectedIndex());
    if (row >= rows_.size()) return;
    Hide();
    PutIntoPane(rows_[row].word);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void CommandCompletion::mnuToolsCompletions_Click() {
  errors_.Guard(Procedure::mnuToolsCompletions_Click, [this] {
    state_.SuggestCommands = !state_.SuggestCommands;
    platform_.frmMain.mnuToolsCompletions.SetChecked(state_.SuggestCommands);
    FollowPane();
    settings_.WriteSetting(setting_section::kGeneral, setting_key::kSuggestCommands,
                           BooleanText(state_.SuggestCommands));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

// Empty if the folder cannot be read: a list of completions is no place to report that.
std::vector<std::u16string> CommandCompletion::RunnableMacros() const {
  if (state_.MacrosFolder.empty()) return {};
  try {
    std::vector<std::u16string> names = macroStore_.ListMacroNames();
    std::erase_if(names, [this](const std::u16string& name) {
      return !FitsIntoOneLine(name) || !macroStore_.MacroExists(name);
    });
    std::ranges::sort(names, {}, [this](const std::u16string& name) {
      return std::pair(platform_.locale.UpperCase(name), name);
    });
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
  } catch (const RunTimeFailure& failure) {
    // That the folder is missing is no error.
    if (failure.number != FailureNumber::PathNotFound) {
      errors_.LogException(Procedure::CommandCompletion);
    }
    return {};
  }
}

}  // namespace verlume
