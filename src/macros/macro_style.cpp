#include "macros/macro_style.h"

#include "shell/scoped_flag.h"

namespace verlume {

void MacroStyle::TakeCommandStyle() {
  state_.MacroFont = state_.Font;
  ApplyToText();
  TakeStyleAtCaret();
}

void MacroStyle::StartEmptyText() {
  // The style of the old text must not become the macro style.
  const ScopedFlag emptying(updating_);
  platform_.frmMacros.rtbMacroText.SetText(u"");
  ApplyMacroStyle();
}

void MacroStyle::ApplyMacroStyle() {
  ApplyToText();
  platform_.frmMacros.rtbMacroText.SetFocus();
}

void MacroStyle::ApplyToText() {
  const ScopedFlag applying(updating_);
  RichTextBox& text = platform_.frmMacros.rtbMacroText;
  if (text.TextLength() == 0) text.Select(0, 0);
  text.SetFontCharset(richtext::kGreekCharset);
  const bool wouldChangeShownMacro = text.Locked() && text.SelLength() > 0;
  if (!wouldChangeShownMacro) text.SetSelFormat(FormatOf(state_.MacroFont));
}

void MacroStyle::rtbMacroText_SelChange() {
  errors_.Guard(Procedure::frmMacros_Load, [this] { TakeStyleAtCaret(); });
}

void MacroStyle::TakeStyleAtCaret() {
  const RichTextBox& text = platform_.frmMacros.rtbMacroText;
  if (updating_ || text.SelLength() > 0) return;
  const SelectionFormat format = text.SelFormat();
  state_.MacroFont = StyleOf(format, state_.MacroFont);
  ShowStyle();
  if (format.color) platform_.frmMacros.lblColour.SetBackColor(*format.color);
}

void MacroStyle::ShowStyle() {
  const ScopedFlag showing(updating_);
  const MacroWindow& frmMacros = platform_.frmMacros;
  frmMacros.chkBold.SetValue(state_.MacroFont.Bold ? 1 : 0);
  frmMacros.chkItalics.SetValue(state_.MacroFont.Italic ? 1 : 0);
  frmMacros.chkUnderlined.SetValue(state_.MacroFont.Underline ? 1 : 0);
}

void MacroStyle::chkBold_Click() {
  SetFlag(state_.MacroFont.Bold, platform_.frmMacros.chkBold);
}

void MacroStyle::chkItalics_Click() {
  SetFlag(state_.MacroFont.Italic, platform_.frmMacros.chkItalics);
}

void MacroStyle::chkUnderlined_Click() {
  SetFlag(state_.MacroFont.Underline, platform_.frmMacros.chkUnderlined);
}

void MacroStyle::SetFlag(bool& flag, const CheckBox& box) {
  if (updating_) return;
  flag = box.Value() != 0;
  try {
    ApplyMacroStyle();
  } catch (...) {
    // No report: the check box shows what the user wants, and the next key tries again.
    errors_.LogException(Procedure::frmMacros_Load);
  }
}

void MacroStyle::lblColour_MouseDown(MouseButton button) {
  if (button == MouseButton::Right) return;
  errors_.Guard(Procedure::lblColour_MouseDown, [this] {
    state_.MacroFont.Color = platform_.dlgControl.ShowColor(state_.MacroFont.Color);
    platform_.frmMacros.lblColour.SetBackColor(state_.MacroFont.Color);
    ApplyMacroStyle();
  });
}

}  // namespace verlume
