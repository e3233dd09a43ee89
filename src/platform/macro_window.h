// The macro editor's window, frmMacros, as the logic sees it: references to its controls, by name.
// It is shown in the middle of the screen.
#pragma once

#include "platform/control.h"
#include "platform/rich_text_box.h"
#include "platform/window.h"

namespace verlume {

struct MacroWindow {
  Window& window;
  ListBox& lstMacroNames;
  RichTextBox& rtbMacroText;  // a single-line box; Tab does not reach it while it is locked

  Button& cmdAdd;
  Button& cmdEdit;
  Button& cmdSave;
  Button& cmdSaveAs;
  Button& cmdCancel;
  Button& cmdDelete;
  Button& cmdRun;
  Button& cmdClose;

  Label& lblColour;
  CheckBox& chkBold;
  CheckBox& chkItalics;
  CheckBox& chkUnderlined;
};

}  // namespace verlume
