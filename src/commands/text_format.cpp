#include "commands/text_format.h"

#include "shell/raised.h"
#include "shell/settings_reader.h"

namespace verlume {
namespace {

SelectionFormat FormatOf(const AppState& state) {
  return {.fontName = state.FontName,
          .fontSize = state.FontSize,
          .color = state.FontColor,
          .bold = state.FontBold,
          .italic = state.FontItalic,
          .underline = state.FontUnderline,
          .strikethrough = state.FontStrikethrough};
}

template <class Value>
bool Change(Value& value, const Value& newValue) {
  if (value == newValue) return false;
  value = newValue;
  return true;
}

// The format becomes the local style, its size the nearest one that is accepted; what is
// undetermined of the four flags is off. True when the style differs from before.
bool TakeStyle(AppState& state, const SelectionFormat& format) {
  bool changed = Change(state.FontName, format.fontName.value_or(state.FontName));
  changed |= Change(state.FontSize, AcceptedFontSize(format.fontSize.value_or(state.FontSize)));
  changed |= Change(state.FontColor, format.color.value_or(state.FontColor));
  changed |= Change(state.FontBold, format.bold.value_or(false));
  changed |= Change(state.FontItalic, format.italic.value_or(false));
  changed |= Change(state.FontUnderline, format.underline.value_or(false));
  changed |= Change(state.FontStrikethrough, format.strikethrough.value_or(false));
  return changed;
}

}  // namespace

void TextFormat::ApplyCommandStyle() {
  styleInForce_ = true;
  errors_.Guard(Procedure::ApplyCommandStyle, [this] {
    ApplyToPane();
    ShowStyle();
    WriteFontSettings(state_, settings_);
  });
}

void TextFormat::ApplyToPane() {
  // Moving the insertion point must not bring the style found there back into force.
  const Raised applying(settling_);
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (pane.TextLength() > 0) pane.Select(pane.TextLength(), 0);
  pane.SetFontCharset(richtext::kGreekCharset);
  pane.SetSelFormat(FormatOf(state_));
}

// Check boxes, ticks and the colour label agree with the local style.
void TextFormat::ShowStyle() {
  // The click of a check box would apply the style, which moves the insertion point to the end.
  const Raised showing(settling_);
  MainWindow& frmMain = platform_.frmMain;
  frmMain.chkBold.SetValue(state_.FontBold ? 1 : 0);
  frmMain.chkItalics.SetValue(state_.FontItalic ? 1 : 0);
  frmMain.chkUnderline.SetValue(state_.FontUnderline ? 1 : 0);
  frmMain.mnuFormatFontBold.SetChecked(state_.FontBold);
  frmMain.mnuFormatFontItalics.SetChecked(state_.FontItalic);
  frmMain.mnuFormatFontUnderline.SetChecked(state_.FontUnderline);
  frmMain.lblColor.SetTag(kFromCode);
  frmMain.lblColor.SetBackColor(state_.FontColor);
  frmMain.lblColor.SetTag(u"");
}

void TextFormat::rtbCommands_SelChange() {
  // Before the start-up has put the stored style into force, the pane's own format is not the
  // user's.
  if (settling_ || !styleInForce_) return;
  bool changed = false;
  errors_.Guard(Procedure::rtbCommands_SelChange, [this, &changed] {
    RichTextBox& pane = platform_.frmMain.rtbCommands;
    if (pane.SelLength() > 0) return;
    // No character is left whose format could be the user's.
    if (pane.TextLength() == 0) return ApplyToPane();
    const SelectionFormat format = pane.SelFormat();
    changed = TakeStyle(state_, format);
    // Text from elsewhere may be of any size; what is typed into it is not.
    if (format.fontSize && format.fontSize != state_.FontSize) ApplySizeToPane();
    ShowStyle();
  });
  if (!changed) return;
  errors_.Guard(Procedure::ApplyCommandStyle, [this] { WriteFontSettings(state_, settings_); });
}

void TextFormat::ApplySizeToPane() {
  SelectionFormat size;
  size.fontSize = state_.FontSize;
  platform_.frmMain.rtbCommands.SetSelFormat(size);
}

void TextFormat::SetFlag(bool& flag, bool wanted) {
  if (settling_) return;
  flag = wanted;
  ApplyCommandStyle();
  platform_.frmMain.rtbCommands.SetFocus();
}

void TextFormat::chkBold_Click() {
  SetFlag(state_.FontBold, platform_.frmMain.chkBold.Value() > 0);
}

void TextFormat::chkItalics_Click() {
  SetFlag(state_.FontItalic, platform_.frmMain.chkItalics.Value() > 0);
}

void TextFormat::chkUnderline_Click() {
  SetFlag(state_.FontUnderline, platform_.frmMain.chkUnderline.Value() > 0);
}

void TextFormat::mnuFormatFontBold_Click() {
  SetFlag(state_.FontBold, !platform_.frmMain.mnuFormatFontBold.Checked());
}

void TextFormat::mnuFormatFontItalics_Click() {
  SetFlag(state_.FontItalic, !platform_.frmMain.mnuFormatFontItalics.Checked());
}

void TextFormat::mnuFormatFontUnderline_Click() {
  SetFlag(state_.FontUnderline, !platform_.frmMain.mnuFormatFontUnderline.Checked());
}

}  // namespace verlume
