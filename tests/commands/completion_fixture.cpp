#include "commands/completion_fixture.h"

namespace verlume::fake {

CompletionSide::CompletionSide() {
  state.MacrosFolder = u"/macros/";
  fake.files.MakeFolder(u"/macros");
  pane.onKeyDown = [this](int& code, int shift) {
    completion.rtbCommands_KeyDown(code, shift);
    if (code != 0) history.rtbCommands_KeyDown(code, shift);
  };
  pane.onChange = [this] { completion.rtbCommands_Change(); };
  pane.onGotFocus = [this] { completion.rtbCommands_GotFocus(); };
  pane.onLostFocus = [this] { completion.rtbCommands_LostFocus(); };
  window.lstCompletions.onClick = [this] { completion.lstCompletions_Click(); };
  textFormat.ApplyCommandStyle();
}

CompletionSide::~CompletionSide() = default;

}  // namespace verlume::fake
