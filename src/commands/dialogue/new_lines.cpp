#include "commands/dialogue/new_lines.h"

#include <optional>
#include <string>

#include "shell/lines_below.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr int kCtrl = 2;

// For assistive tools.
constexpr TextPair kUnreadFromHere = {u"You have not read this yet.",
                                      u"Δεν το έχετε διαβάσει ακόμη."};

}  // namespace

Reader NewLines::ReaderNow() const {
  const RichTextBox& pane = platform_.frmMain.rtbData;
  const bool isReading = !pane.ShowsEnd() || pane.SelLength() > 0 || pane.IsPressed();
  return isReading ? Reader::Stays : Reader::Follows;
}

void NewLines::NoteArrived(std::size_t position, Reader reader) {
  MainWindow& frmMain = platform_.frmMain;
  if (!frmMain.window.IsActive() && !isMarked_) {
    frmMain.rtbData.MarkUnread(
        position, [this] { return std::u16string(kUnreadFromHere.In(state_.IsGreek)); });
    isMarked_ = true;
  }
  if (reader == Reader::Stays && !frmMain.rtbData.ShowsEnd()) ShowCount(state_.LinesBelow + 1);
}

void NewLines::NoteSaid() {
  platform_.frmMain.rtbData.MarkUnread(std::nullopt, {});
  ShowCount(0);
}

void NewLines::rtbData_EndShown() {
  if (state_.LinesBelow > 0) ShowCount(0);
}

void NewLines::cmdNewLines_Click() {
  errors_.Guard(Procedure::WriteDialogueLine, [this] {
    RichTextBox& pane = platform_.frmMain.rtbData;
    pane.Select(pane.TextLength(), 0);
    ShowCount(0);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void NewLines::rtbCommands_KeyDown(int keyCode, int shift) {
  if (keyCode == key_code::kEnd && shift == kCtrl && state_.LinesBelow > 0) cmdNewLines_Click();
  if (platform_.frmMain.rtbData.ShowsEnd()) platform_.frmMain.rtbData.MarkUnread(std::nullopt, {});
}

// The button must not take the focus with it when it goes.
void NewLines::ShowCount(std::size_t lines) {
  MainWindow& frmMain = platform_.frmMain;
  if (lines == 0 && frmMain.newLines.fraNewLines.HasFocus()) frmMain.rtbCommands.SetFocus();
  state_.LinesBelow = lines;
  ShowLinesBelow(state_, frmMain);
}

}  // namespace verlume
