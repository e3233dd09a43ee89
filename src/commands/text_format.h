// The user's own text style, and the back colours of the panes.
#pragma once

#include "commands/dialogue.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class TextFormat {
 public:
  TextFormat(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings,
             Dialogue& dialogue)
      : state_(state),
        platform_(platform),
        errors_(errors),
        settings_(settings),
        dialogue_(dialogue) {}

  // Applies the local style to what is typed next in the command pane and saves it.
  void ApplyCommandStyle();

  void chkBold_Click();
  void chkItalics_Click();
  void chkUnderline_Click();
  void lblColor_MouseDown(MouseButton button);
  void mnuFormatFontBold_Click();
  void mnuFormatFontItalics_Click();
  void mnuFormatFontUnderline_Click();
  void mnuFormatFontColor_Click();
  void mnuFormatFontSize_Click();
  void mnuFormatFontSettings_Click();
  void mnuFormatBackcolorCommands_Click();
  void mnuFormatBackcolorDialogue_Click();

  // The size in AppState::CommandLine, asked for when there is none: a number from 8 to 11.
  void SetFontSize();

  // The style at the insertion point becomes the local style.
  void rtbCommands_SelChange();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  Dialogue& dialogue_;
};

}  // namespace verlume
