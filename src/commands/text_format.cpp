#include "commands/text_format.h"

#include <utility>

#include "shell/scoped_flag.h"
#include "shell/settings_reader.h"

namespace verlume {
namespace {

// Makes the format the local style, with the nearest accepted size. True when the style has
// changed.
bool TakeStyle(AppState& state, const SelectionFormat& format) {
  TextStyle style = StyleOf(format, state.Font);
  style.Size = AcceptedFontSize(style.Size);
  if (style == state.Font) return false;
  state.Font = std::move(style);
  return true;
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
  // Moving the insertion point must not make the style found there the local style.
  const ScopedFlag applying(updating_);
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (pane.TextLength() > 0) pane.Select(pane.TextLength(), 0);
  pane.SetFontCharset(richtext::kGreekCharset);
  pane.SetSelFormat(FormatOf(state_.Font));
}

// Makes check boxes, ticks and the colour label show the local style.
void TextFormat::ShowStyle() {
  // A check box raises its click, which would apply the style and move the insertion point.
  const ScopedFlag showing(updating_);
  MainWindow& frmMain = platform_.frmMain;
  frmMain.chkBold.SetValue(state_.Font.Bold ? 1 : 0);
  frmMain.chkItalics.SetValue(state_.Font.Italic ? 1 : 0);
  frmMain.chkUnderline.SetValue(state_.Font.Underline ? 1 : 0);
  frmMain.mnuFormatFontBold.SetChecked(state_.Font.Bold);
  frmMain.mnuFormatFontItalics.SetChecked(state_.Font.Italic);
  frmMain.mnuFormatFontUnderline.SetChecked(state_.Font.Underline);
  frmMain.lblColor.SetTag(kFromCode);
  frmMain.lblColor.SetBackColor(state_.Font.Color);
  frmMain.lblColor.SetTag(u"");
}

void TextFormat::rtbCommands_SelChange() {
  // Until start-up has applied the stored style, the pane's format is not the user's.
  if (updating_ || !styleInForce_) return;
  bool changed = false;
  errors_.Guard(Procedure::rtbCommands_SelChange, [this, &changed] {
    RichTextBox& pane = platform_.frmMain.rtbCommands;
    if (pane.SelLength() > 0) return;
    // There is no character whose format could be the user's.
    if (pane.TextLength() == 0) return ApplyToPane();
    const SelectionFormat format = pane.SelFormat();
    changed = TakeStyle(state_, format);
    // Pasted text may have any size, but what is typed into it may not.
    if (format.fontSize && format.fontSize != state_.Font.Size) ApplySizeToPane();
    ShowStyle();
  });
  if (!changed) return;
  errors_.Guard(Procedure::ApplyCommandStyle, [this] { WriteFontSettings(state_, settings_); });
}

void TextFormat::ApplySizeToPane() {
  SelectionFormat size;
  size.fontSize = state_.Font.Size;
  platform_.frmMain.rtbCommands.SetSelFormat(size);
}

void TextFormat::SetFlag(bool& flag, bool wanted) {
  if (updating_) return;
  flag = wanted;
  ApplyCommandStyle();
  platform_.frmMain.rtbCommands.SetFocus();
}

void TextFormat::chkBold_Click() {
  SetFlag(state_.Font.Bold, platform_.frmMain.chkBold.Value() > 0);
}

void TextFormat::chkItalics_Click() {
  SetFlag(state_.Font.Italic, platform_.frmMain.chkItalics.Value() > 0);
}

void TextFormat::chkUnderline_Click() {
  SetFlag(state_.Font.Underline, platform_.frmMain.chkUnderline.Value() > 0);
}

void TextFormat::mnuFormatFontBold_Click() {
  SetFlag(state_.Font.Bold, !platform_.frmMain.mnuFormatFontBold.Checked());
}

void TextFormat::mnuFormatFontItalics_Click() {
  SetFlag(state_.Font.Italic, !platform_.frmMain.mnuFormatFontItalics.Checked());
}

void TextFormat::mnuFormatFontUnderline_Click() {
  SetFlag(state_.Font.Underline, !platform_.frmMain.mnuFormatFontUnderline.Checked());
}

}  // namespace verlume
