#include "commands/history.h"

#include <utility>

#include "platform/char_code.h"
#include "platform/run_time_failure.h"
#include "shell/conversions.h"
#include "shell/scoped_flag.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

int CountOf(const AppState& state) {
  return IntegerOf(state.History[0]);
}

void SetPositions(AppState& state, int up, int down) {
  state.HistoryUp = static_cast<std::int16_t>(up);
  state.HistoryDown = static_cast<std::int16_t>(down);
}

}  // namespace

void CommandHistory::AddToHistory() {
  auto& lines = state_.History;
  int count = CountOf(state_) + 1;
  if (count > kHistoryCapacity) {
    std::move(lines.begin() + 2, lines.end(), lines.begin() + 1);
    count = kHistoryCapacity;
  }
  lines[static_cast<std::size_t>(count)] = platform_.frmMain.rtbCommands.Rtf();
  lines[0] = DecimalText(count);
  SetPositions(state_, count + 1, count - 1);
}

void CommandHistory::rtbCommands_KeyDown(int& keyCode, int shift) {
  if (shift != 0) return;
  errors_.Guard(Procedure::rtbCommands_KeyDown, [this, &keyCode] {
    const int key = KeyInPane(keyCode);
    switch (key) {
      case key_code::kTab:
      case key_code::kEscape:
      case key_code::kPageUp:
      case key_code::kPageDown:
        keyCode = char_code::kSwallowed;
    }
    if (key == key_code::kEscape) ClearCommands();
    if (key == key_code::kPageUp) ShowPreviousLine();
    if (key == key_code::kPageDown) ShowNextLine();
  });
}

// Up and Down are as good as Page Up and Page Down at the pane's first and last line.
int CommandHistory::KeyInPane(int keyCode) const {
  const RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (keyCode == key_code::kUp && pane.IsInFirstLine()) return key_code::kPageUp;
  if (keyCode == key_code::kDown && pane.IsInLastLine()) return key_code::kPageDown;
  return keyCode;
}

void CommandHistory::ShowPreviousLine() {
  const int count = CountOf(state_);
  if (count == 0) return;
  const int previous = state_.HistoryUp - 1;
  ShowLine(previous < 1 ? count : previous);
}

void CommandHistory::ShowNextLine() {
  const int count = CountOf(state_);
  if (count == 0) return;
  const int next = state_.HistoryDown + 1;
  ShowLine(next > count ? 1 : next);
}

void CommandHistory::ShowLine(int index) {
  if (index < 1 || index > kHistoryCapacity) {
    throw RunTimeFailure(FailureNumber::InvalidProcedureCall);
  }
  const ScopedFlag showing(showingLine_);
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  pane.SetRtf(state_.History[static_cast<std::size_t>(index)]);
  pane.Select(pane.TextLength(), 0);
  SetPositions(state_, index, index);
}

void CommandHistory::ClearCommands() {
  platform_.frmMain.rtbCommands.SetText(u"");
  platform_.frmMain.rtbCommands.SetFocus();
}

void CommandHistory::mnuToolsClearCommands_Click() {
  errors_.Guard(Procedure::mnuToolsClear_Click, [this] { ClearCommands(); });
}

void CommandHistory::mnuToolsClearHistory_Click() {
  errors_.Guard(Procedure::mnuToolsClear_Click, [this] {
    state_.History.fill(u"");
    state_.History[0] = u"0";
    SetPositions(state_, 1, -1);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
