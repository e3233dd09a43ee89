// The user's text style, and the back colours of the panes.
#pragma once

#include <string_view>

#include "commands/dialogue/dialogue.h"
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

  // Applies the local style to what is typed next in the command pane, shows it in the check boxes,
  // ticks and colour label, and saves it. A failure is reported (229), not thrown.
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

  // Sets the size to the number in the command line, in whole or half points from 8 to 11; asks for
  // it if there is none, refuses any other.
  void SetFontSize(std::u16string_view commandLine);

  // Makes the style at the insertion point the local style, and saves it if it has changed. In an
  // empty pane the local style stays. The insertion point stays. Does nothing before the first
  // ApplyCommandStyle.
  void rtbCommands_SelChange();

 private:
  // The tag of lblColor while the program paints it: a mouse press does not open the dialog then.
  static constexpr std::u16string_view kFromCode = u"FROMCODE";

  void ApplyToPane();
  void ShowStyle();
  void ApplySizeToPane();
  void SetFlag(bool& flag, bool wanted);
  void ChooseBackColor(RichTextBox& pane, std::u16string_view key, Procedure procedure);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  Dialogue& dialogue_;
  bool updating_ = false;      // this object is changing the controls: their events are ignored
  bool styleInForce_ = false;  // the local style has been applied once
};

}  // namespace verlume
