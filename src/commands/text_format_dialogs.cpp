// The text format's questions: for a colour, the font, its size.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "commands/text_format.h"
#include "connection/command_parts.h"
#include "shell/conversions.h"
#include "shell/draft.h"
#include "shell/font_size_texts.h"
#include "shell/setting_names.h"
#include "shell/settings_reader.h"
#include "shell/trim.h"

namespace verlume {
namespace {

// The size in the text: digits with at most one decimal mark, "." or ",". Blanks around it are
// ignored. None if the text is anything else, or a size that is not accepted: the user is told, and
// no other size is taken in its place.
std::optional<double> FontSizeOf(std::u16string_view text) {
  std::u16string number(Trim(text));
  std::replace(number.begin(), number.end(), u',', u'.');
  const bool isPlain = number.find_first_not_of(u"0123456789.") == number.npos &&
                       number.find_first_of(u"0123456789") != number.npos &&
                       std::count(number.begin(), number.end(), u'.') <= 1;
  if (!isPlain) return std::nullopt;
  const double size = NumericPrefixOf(number);
  if (size != AcceptedFontSize(size)) return std::nullopt;
  return size;
}

}  // namespace

void TextFormat::SetFontSize(std::u16string_view commandLine) {
  errors_.Guard(Procedure::SetFontSize, [this, commandLine] {
    const std::vector<std::u16string> parts = CommandParts(commandLine, 2);
    std::u16string answer = parts.size() > 1 ? parts[1] : u"";
    if (answer.empty()) {
      answer = platform_.dialogs.AskText(font_size_texts::kPrompt.In(state_.IsGreek),
                                         font_size_texts::kTitle.In(state_.IsGreek),
                                         NumberText(state_.Font.Size));
    }
    if (answer.empty()) return;
    if (const std::optional<double> size = FontSizeOf(answer)) {
      state_.Font.Size = *size;
      ApplyCommandStyle();
      dialogue_.ClearCommandPane();
    } else {
      platform_.dialogs.ShowMessage(Note(font_size_texts::kRange.In(state_.IsGreek),
                                         font_size_texts::kTitle.In(state_.IsGreek)));
    }
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void TextFormat::mnuFormatFontSize_Click() {
  state_.CommandLine = u"/SIZE";
  state_.OutgoingText.clear();
  errors_.Guard(Procedure::SetFontSize, [this] {
    const Draft draft(platform_);
    SetFontSize(u"/SIZE");
    const bool isRestored = draft.Restore(state_.Font);
    // The new size is for what is typed next, which would take the size of what it replaces.
    if (isRestored && platform_.frmMain.rtbCommands.SelLength() > 0) ApplyToPane();
  });
}

void TextFormat::lblColor_MouseDown(MouseButton button) {
  if (button == MouseButton::Right) return;
  if (platform_.frmMain.lblColor.Tag() == kFromCode) return;
  errors_.Guard(Procedure::lblColor_MouseDown, [this] {
    state_.Font.Color = platform_.dlgControl.ShowColor(state_.Font.Color);
    ApplyCommandStyle();
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void TextFormat::mnuFormatFontColor_Click() {
  lblColor_MouseDown(MouseButton::Left);
}

void TextFormat::mnuFormatFontSettings_Click() {
  errors_.Guard(Procedure::mnuFormatFontSettings_Click, [this] {
    state_.Font = StyleOf(platform_.dlgControl.ShowFont(FontChoiceOf(state_.Font),
                                                        kSmallestFontSize, kLargestFontSize));
    state_.Font.Size = AcceptedFontSize(state_.Font.Size);
    ApplyCommandStyle();
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void TextFormat::mnuFormatBackcolorCommands_Click() {
  ChooseBackColor(platform_.frmMain.rtbCommands, setting_key::kCommands,
                  Procedure::mnuFormatBackcolorCommands_Click);
}

void TextFormat::mnuFormatBackcolorDialogue_Click() {
  ChooseBackColor(platform_.frmMain.rtbData, setting_key::kDialogue,
                  Procedure::mnuFormatBackcolorDialogue_Click);
}

void TextFormat::ChooseBackColor(RichTextBox& pane, std::u16string_view key, Procedure procedure) {
  errors_.Guard(procedure, [this, &pane, key] {
    const Color chosen = platform_.dlgControl.ShowColor(pane.BackColor());
    pane.SetBackColor(chosen);
    settings_.WriteSetting(setting_section::kBackColor, key, DecimalText(chosen));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
