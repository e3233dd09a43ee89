#include "macros/macro_style.h"

#include "shell/raised.h"

namespace verlume {
namespace {

SelectionFormat FormatOf(const AppState& state) {
  return {.fontName = state.MacroFontName,
          .fontSize = state.MacroFontSize,
          .color = state.MacroColor,
          .bold = state.MacroBold,
          .italic = state.MacroItalic,
          .underline = state.MacroUnderline,
          .strikethrough = state.MacroStrikethrough};
}

// What is undetermined of the flags is off; a font, size or colour that is stays as it was.
void TakeFormat(AppState& state, const SelectionFormat& format) {
  state.MacroFontName = format.fontName.value_or(state.MacroFontName);
  state.MacroFontSize = format.fontSize.value_or(state.MacroFontSize);
  state.MacroColor = format.color.value_or(state.MacroColor);
  state.MacroBold = format.bold.value_or(false);
  state.MacroItalic = format.italic.value_or(false);
  state.MacroUnderline = format.underline.value_or(false);
  state.MacroStrikethrough = format.strikethrough.value_or(false);
}

}  // namespace

void MacroStyle::TakeCommandStyle() {
  state_.MacroFontName = state_.FontName;
  state_.MacroBold = state_.FontBold;
  state_.MacroItalic = state_.FontItalic;
  state_.MacroStrikethrough = state_.FontStrikethrough;
  state_.MacroUnderline = state_.FontUnderline;
  state_.MacroColor = state_.FontColor;
  state_.MacroFontSize = state_.FontSize;
  ApplyToText();
  TakeStyleAtCaret();
}

void MacroStyle::StartEmptyText() {
  // The style found in a text that is going must not come into force.
  const Raised emptying(settling_);
  platform_.frmMacros.rtbMacroText.SetText(u"");
  ApplyMacroStyle();
}

void MacroStyle::ApplyMacroStyle() {
  ApplyToText();
  platform_.frmMacros.rtbMacroText.SetFocus();
}

void MacroStyle::ApplyToText() {
  const Raised applying(settling_);
  RichTextBox& text = platform_.frmMacros.rtbMacroText;
  if (text.TextLength() == 0) text.Select(0, 0);
  text.SetFontCharset(richtext::kGreekCharset);
  const bool wouldChangeShownMacro = text.Locked() && text.SelLength() > 0;
  if (!wouldChangeShownMacro) text.SetSelFormat(FormatOf(state_));
}

void MacroStyle::rtbMacroText_SelChange() {
  errors_.Guard(Procedure::frmMacros_Load, [this] { TakeStyleAtCaret(); });
}

void MacroStyle::TakeStyleAtCaret() {
  const RichTextBox& text = platform_.frmMacros.rtbMacroText;
  if (settling_ || text.SelLength() > 0) return;
  const SelectionFormat format = text.SelFormat();
  TakeFormat(state_, format);
  ShowStyle();
  if (format.color) platform_.frmMacros.lblColour.SetBackColor(*format.color);
}

void MacroStyle::ShowStyle() {
  const Raised showing(settling_);
  const MacroWindow& frmMacros = platform_.frmMacros;
  frmMacros.chkBold.SetValue(state_.MacroBold ? 1 : 0);
  frmMacros.chkItalics.SetValue(state_.MacroItalic ? 1 : 0);
  frmMacros.chkUnderlined.SetValue(state_.MacroUnderline ? 1 : 0);
}

void MacroStyle::chkBold_Click() {
  SetFlag(state_.MacroBold, platform_.frmMacros.chkBold);
}

void MacroStyle::chkItalics_Click() {
  SetFlag(state_.MacroItalic, platform_.frmMacros.chkItalics);
}

void MacroStyle::chkUnderlined_Click() {
  SetFlag(state_.MacroUnderline, platform_.frmMacros.chkUnderlined);
}

void MacroStyle::SetFlag(bool& flag, const CheckBox& box) {
  if (settling_) return;
  flag = box.Value() != 0;
  try {
    ApplyMacroStyle();
  } catch (...) {
    // No report: the check box shows the user's choice, and the next key tries again.
    errors_.LogException(Procedure::frmMacros_Load);
  }
}

void MacroStyle::lblColour_MouseDown(MouseButton button) {
  if (button == MouseButton::Right) return;
  errors_.Guard(Procedure::lblColour_MouseDown, [this] {
    state_.MacroColor = platform_.dlgControl.ShowColor(state_.MacroColor);
    platform_.frmMacros.lblColour.SetBackColor(state_.MacroColor);
    ApplyMacroStyle();
  });
}

}  // namespace verlume
