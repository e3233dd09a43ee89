// The text style of the macro editor, and the controls that show and set it.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class MacroStyle {
 public:
  MacroStyle(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Makes the command pane's style the macro style, and shows it. Does not take the focus.
  void TakeCommandStyle();
  // Empties the text box. What is typed next has the macro style, which does not change.
  void StartEmptyText();
  // Applies the macro style to the selection or insertion point, and gives the text box the focus.
  // A selection in a locked box is left alone.
  void ApplyMacroStyle();

  // These three ignore failures.
  void chkBold_Click();
  void chkItalics_Click();
  void chkUnderlined_Click();
  void lblColour_MouseDown(MouseButton button);
  // Makes the style at the insertion point the macro style, and shows it.
  void TakeStyleAtCaret();
  void rtbMacroText_SelChange();
  // Handles the keys that set the style, and swallows Enter.
  void rtbMacroText_KeyPress(int& charCode);

 private:
  void ApplyToText();
  void ShowStyle();
  void SetFlag(bool& flag, const CheckBox& box);
  void Perform(int charCode);
  void ChooseFont();
  void AskFontSize();

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  bool updating_ = false;  // this object is changing the box and controls: their events are ignored
};

}  // namespace verlume
