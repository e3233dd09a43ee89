// The keys that set the macro style, and the questions that they ask.
#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "macros/macro_style.h"
#include "platform/char_code.h"
#include "shell/conversions.h"
#include "shell/font_size_texts.h"
#include "shell/settings_reader.h"
#include "shell/trim.h"

namespace verlume {
namespace {

bool IsEditorKey(int charCode) {
  using namespace char_code;
  const int all[] = {kCtrlB, kCtrlF, kCtrlI, kCtrlEnter, kCtrlK, kEnter, kCtrlS, kCtrlU};
  return std::find(std::begin(all), std::end(all), charCode) != std::end(all);
}

void Toggle(CheckBox& box) {
  box.SetValue(box.Value() != 0 ? 0 : 1);
}

// The size in the text: a whole number in digits, from the smallest to the largest size. Blanks
// around it are ignored.
std::optional<int> FontSizeOf(std::u16string_view text) {
  const std::u16string_view digits = Trim(text);
  if (digits.empty() || digits.find_first_not_of(u"0123456789") != digits.npos) return std::nullopt;
  int size = 0;
  for (const char16_t digit : digits) {
    size = std::min(size * 10 + (digit - u'0'), 1000);
  }
  if (size < kSmallestFontSize || size > kLargestFontSize) return std::nullopt;
  return size;
}

}  // namespace

void MacroStyle::rtbMacroText_KeyPress(int& charCode) {
  errors_.Guard(Procedure::rtbMacroText_KeyPress, [this, &charCode] {
    // Swallowed first, because what the key does may fail or take long.
    const int pressed = charCode;
    if (IsEditorKey(pressed)) charCode = char_code::kSwallowed;
    Perform(pressed);
  });
}

void MacroStyle::Perform(int charCode) {
  switch (charCode) {
    case char_code::kCtrlB:
      return Toggle(platform_.frmMacros.chkBold);
    case char_code::kCtrlI:
      return Toggle(platform_.frmMacros.chkItalics);
    case char_code::kCtrlU:
      return Toggle(platform_.frmMacros.chkUnderlined);
    case char_code::kCtrlK:
      return lblColour_MouseDown(MouseButton::Left);
    case char_code::kCtrlF:
      return ChooseFont();
    case char_code::kCtrlS:
      return AskFontSize();
    default:
      return;  // Enter does nothing: a macro is a single line
  }
}

void MacroStyle::ChooseFont() {
  state_.MacroFont = StyleOf(platform_.dlgControl.ShowFont(FontChoiceOf(state_.MacroFont),
                                                           kSmallestFontSize, kLargestFontSize));
  ApplyMacroStyle();
  TakeStyleAtCaret();
}

void MacroStyle::AskFontSize() {
  const std::u16string_view title = font_size_texts::kTitle.In(state_.IsGreek);
  std::u16string proposed = NumberText(state_.MacroFont.Size);
  for (;;) {
    const std::u16string answer =
        platform_.dialogs.AskText(font_size_texts::kPrompt.In(state_.IsGreek), title, proposed);
    if (answer.empty()) return;
    if (const std::optional<int> size = FontSizeOf(answer)) {
      state_.MacroFont.Size = *size;
      return ApplyMacroStyle();
    }
    platform_.dialogs.ShowMessage(Note(font_size_texts::kRange.In(state_.IsGreek), title));
    proposed.clear();
  }
}

}  // namespace verlume
