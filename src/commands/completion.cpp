#include "commands/completion.h"

#include <algorithm>
#include <utility>

#include "commands/command_texts.h"
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

constexpr TextPair kMacro = {u"macro", u"μακροεντολή"};

constexpr TextPair kNoSuchCommand = {u"No such command: it will be sent as text",
                                     u"Δεν υπάρχει τέτοια εντολή: θα σταλεί ως κείμενο"};

// The command pane turns a line break into a blank, so a name with one could not be typed.
bool FitsIntoOneLine(std::u16string_view name) {
  return std::ranges::none_of(
      name, [](char16_t c) { return c < u' ' || c == u'\u2028' || c == u'\u2029'; });
}

// What a row of the list shows: the word, its arguments and what it does.
std::u16string RowText(const Completion& row, bool isGreek) {
  constexpr std::u16string_view kNextColumn = u"\t";
  std::u16string text = row.word;
  if (row.isCall) return text.append(kNextColumn).append(row.nickname).append(kNextColumn);
  if (row.IsMacro()) return text.append(kNextColumn).append(kNextColumn).append(kMacro.In(isGreek));
  const CommandText& about = TextOfCommand(row.command->english);
  text.append(kNextColumn).append(about.arguments.In(isGreek));
  return text.append(kNextColumn).append(about.explanation.In(isGreek));
}

}  // namespace

void CommandCompletion::rtbCommands_Change() {
  if (updating_) return;
  errors_.Guard(Procedure::CommandCompletion,
                [this] { FollowPane(history_.IsShowingLine() ? Opening::No : Opening::Yes); });
}

void CommandCompletion::rtbCommands_GotFocus() {
  if (platform_.frmMain.completionList.fraCompletions.Visible()) return;
  errors_.Guard(Procedure::CommandCompletion, [this] { FollowPane(Opening::No); });
}

void CommandCompletion::FollowPane(Opening opening) {
  const RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (pane.TextLength() > kLongestWord) return Close();
  std::u16string text = pane.Text();
  if (!text.starts_with(u'/')) return Close();
  if (IsCallLine(text, platform_.locale)) return FollowCallLine(text, opening);
  if (!macros_) macros_ = RunnableMacros();
  typed_ = std::move(text);
  rows_ = CompletionsOf(typed_, state_.IsGreek, *macros_, platform_.locale);
  ShowHint(rows_.empty() && !RunsCommand(typed_));
  const bool isComplete = rows_.size() == 1 && IsComplete(typed_, rows_.front(), platform_.locale);
  const bool mayOpen = opening == Opening::Yes && state_.SuggestCommands && IsCommandWord(typed_);
  if (!mayOpen || rows_.empty() || isComplete) return Hide();
  ShowRows();
}

bool CommandCompletion::RunsCommand(std::u16string_view line) const {
  return FindCommand(platform_.locale.UpperCase(line.substr(0, line.find(u' ')))) != nullptr;
}

void CommandCompletion::ShowHint(bool isShown) {
  platform_.frmMain.lblHint.SetCaption(isShown ? kNoSuchCommand.In(state_.IsGreek) : u"");
}

void CommandCompletion::FollowCallLine(const std::u16string& text, Opening opening) {
  typed_ = text;
  rows_ = CallsOf(typed_, state_.CalledHosts, platform_.locale);
  ShowHint(false);
  if (rows_.empty() || opening == Opening::No || !state_.SuggestCommands) return Hide();
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
  ShowHint(false);
  macros_.reset();
}

void CommandCompletion::rtbCommands_KeyDown(int& keyCode, int shift) {
  if (shift != 0 || !platform_.frmMain.completionList.fraCompletions.Visible()) return;
  const int key = keyCode;
  const bool accepts = key == key_code::kRight && IsCaretAtEnd();
  if (!accepts && key != key_code::kDown && key != key_code::kUp) return;
  keyCode = char_code::kSwallowed;
  errors_.Guard(Procedure::CommandCompletion, [this, key, accepts] {
    if (accepts) return AcceptRow();
    Walk(key == key_code::kDown ? 1 : -1);
  });
}

bool CommandCompletion::IsCaretAtEnd() const {
  const RichTextBox& pane = platform_.frmMain.rtbCommands;
  return pane.SelLength() == 0 && pane.SelStart() == pane.TextLength();
}

void CommandCompletion::AcceptRow() {
  const int selected = platform_.frmMain.completionList.lstCompletions.SelectedIndex();
  Hide();
  PutIntoPane(rows_[static_cast<std::size_t>(std::max(selected, 0))].word);
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
    FollowPane(Opening::Yes);
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
