#include "commands/completion.h"

#include <algorithm>
#include <utility>

#include "platform/char_code.h"
#include "platform/run_time_failure.h"
#include "shell/conversions.h"
#include "shell/raised.h"
#include "shell/setting_names.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

// No name of a file is as long, and a longer line need not be looked at with every key.
constexpr std::size_t kLongestWord = 256;

constexpr TextPair kMacroRow = {u"%1   (macro)", u"%1   (μακροεντολή)"};

// The command pane makes a blank of a line break, and another name with it.
bool FitsIntoOneLine(std::u16string_view name) {
  return std::ranges::none_of(
      name, [](char16_t c) { return c < u' ' || c == u'\u2028' || c == u'\u2029'; });
}

}  // namespace

void CommandCompletion::rtbCommands_Change() {
  if (putting_) return;
  errors_.Guard(Procedure::CommandCompletion, [this] { FollowPane(); });
}

void CommandCompletion::FollowPane() {
  const RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (!state_.SuggestCommands || pane.TextLength() > kLongestWord) return Close();
  const std::u16string text = pane.Text();
  if (!IsCommandWord(text)) return Close();
  typed_ = text;
  if (!macros_) macros_ = MacrosThatRun();
  rows_ = CompletionsOf(typed_, state_.IsGreek, *macros_, platform_.locale);
  const bool isComplete = rows_.size() == 1 && IsComplete(typed_, rows_.front(), platform_.locale);
  if (rows_.empty() || isComplete) return Hide();
  ShowRows();
}

void CommandCompletion::ShowRows() {
  const CompletionList& list = platform_.frmMain.completionList;
  list.lstCompletions.Clear();
  for (const Completion& row : rows_) {
    list.lstCompletions.Append(row.isMacro ? kMacroRow.Fill(state_.IsGreek, {row.word}) : row.word);
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
  // What was typed stands before the first row, as row -1.
  const int places = static_cast<int>(rows_.size()) + 1;
  const int row = (list.SelectedIndex() + 1 + step + places) % places - 1;
  list.Select(row);
  if (row < 0) list.ScrollToTop(0);
  PutIntoPane(row < 0 ? typed_ : rows_[static_cast<std::size_t>(row)].word);
}

// In the style at the insertion point, as if it were typed there.
void CommandCompletion::PutIntoPane(std::u16string_view word) {
  const Raised putting(putting_);
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

// A folder that cannot be read has none: the list is no place to tell of it.
std::vector<std::u16string> CommandCompletion::MacrosThatRun() const {
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
  } catch (const RunTimeFailure&) {
    return {};
  }
}

}  // namespace verlume
