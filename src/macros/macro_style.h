// The style in force while a macro is edited, and the controls that show and set it.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class MacroStyle {
 public:
  MacroStyle(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // The command pane's style becomes the macro style, and is shown. Takes no focus.
  void TakeCommandStyle();
  // Empties the text box; what is typed into it next is of the macro style as it was before.
  void StartEmptyText();
  // Applies the macro style to the selection or insertion point, and gives the text box the focus.
  // What is selected in a locked box stays as it is.
  void ApplyMacroStyle();

  // A failure of these three is ignored.
  void chkBold_Click();
  void chkItalics_Click();
  void chkUnderlined_Click();
  void lblColour_MouseDown(MouseButton button);
  // The style at the insertion point becomes the macro style, and is shown.
  void TakeStyleAtCaret();
  void rtbMacroText_SelChange();
  // The keys that set the style; Enter is swallowed too.
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
  bool settling_ = false;  // the program changes box and controls: their events are echoes
};

}  // namespace verlume
