#include "macros/macro_editor.h"

#include <utility>

#include "macros/macro_editor_states.h"
#include "macros/macro_editor_texts.h"
#include "platform/char_code.h"
#include "shell/draft.h"

namespace verlume {

namespace texts = macro_editor_texts;

void MacroEditor::OpenMacroEditor() {
  errors_.Guard(Procedure::frmMacros_Load, [this] {
    if (store_.EnsureMacrosFolder(texts::kNoFolder, texts::kNoFolderTitle)) ShowWindow();
  });
  if (!platform_.application.HasEnded()) platform_.frmMain.rtbCommands.SetFocus();
}

void MacroEditor::ShowWindow() {
  // After a failure the window is shown without what could not be set.
  errors_.Guard(Procedure::frmMacros_Load, [this] { Load(); });
  if (platform_.application.HasEnded()) return;
  platform_.frmMacros.window.ShowModal();
  if (!platform_.application.HasEnded()) RunChosenMacro();
}

void MacroEditor::Load() {
  const MacroWindow& frmMacros = platform_.frmMacros;
  state_.MacroToRun.clear();
  frmMacros.lstMacroNames.Clear();
  frmMacros.lblColour.SetCaption(u"");
  ShowNothing();
  SetCaptions();
  style_.TakeCommandStyle();
  for (const std::u16string& name : store_.ListMacroNames()) frmMacros.lstMacroNames.Append(name);
  EnterState(frmMacros, MacroEditorState::Empty);
  frmMacros.lstMacroNames.SetFocus();
}

void MacroEditor::SetCaptions() {
  namespace captions = texts::captions;
  const MacroWindow& frmMacros = platform_.frmMacros;
  const bool isGreek = state_.IsGreek;
  frmMacros.window.SetTitle(captions::kWindow.In(isGreek));
  const std::pair<Button*, const TextPair*> buttons[] = {
      {&frmMacros.cmdAdd, &captions::kAdd},       {&frmMacros.cmdEdit, &captions::kEdit},
      {&frmMacros.cmdSave, &captions::kSave},     {&frmMacros.cmdSaveAs, &captions::kSaveAs},
      {&frmMacros.cmdCancel, &captions::kCancel}, {&frmMacros.cmdDelete, &captions::kDelete},
      {&frmMacros.cmdRun, &captions::kRun},       {&frmMacros.cmdClose, &captions::kClose}};
  for (const auto& [button, caption] : buttons) button->SetCaption(caption->In(isGreek));
  const std::pair<CheckBox*, const TextPair*> boxes[] = {
      {&frmMacros.chkBold, &captions::kBold},
      {&frmMacros.chkItalics, &captions::kItalics},
      {&frmMacros.chkUnderlined, &captions::kUnderlined}};
  for (const auto& [box, text] : boxes) {
    box->SetCaption(text->In(isGreek));
    box->SetToolTip(text->In(isGreek));
  }
  const std::pair<Control*, const TextPair*> others[] = {
      {&frmMacros.lstMacroNames, &captions::kNames},
      {&frmMacros.rtbMacroText, &captions::kText},
      {&frmMacros.lblColour, &captions::kColour}};
  for (const auto& [control, text] : others) {
    control->SetToolTip(text->In(isGreek));
    control->SetAccessibleName(text->In(isGreek));
  }
}

void MacroEditor::RunChosenMacro() {
  const std::u16string macro = std::exchange(state_.MacroToRun, {});
  if (macro.empty()) return;
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  const Draft draft(platform_);
  const TextStyle style = state_.Font;  // before the macro's own comes into force
  pane.SetRtf(macro);
  int enter = char_code::kEnter;
  if (pane.onKeyPress) pane.onKeyPress(enter);
  draft.Restore(style);
}

void MacroEditor::Form_QueryUnload(bool& cancel, UnloadMode mode) {
  if (mode == UnloadMode::Code) return;
  cancel = true;
  errors_.Guard(Procedure::frmMacros_Load, [this] {
    platform_.dialogs.ShowMessage(Note(texts::close::kOnlyByButton.In(state_.IsGreek),
                                       texts::close::kTitle.In(state_.IsGreek)));
    FocusTextOrList();
  });
}

void MacroEditor::lstMacroNames_Click() {
  const MacroWindow& frmMacros = platform_.frmMacros;
  if (SaysNo(frmMacros.lstMacroNames.Tag()) && state_.MacroIndex >= 0) {
    frmMacros.lstMacroNames.Select(state_.MacroIndex);
    return frmMacros.rtbMacroText.SetFocus();
  }
  const int chosen = frmMacros.lstMacroNames.SelectedIndex();
  const std::u16string name = frmMacros.lstMacroNames.Item(chosen);
  if (errors_.Guard(Procedure::lstMacroNames_Click, [this, chosen] { Show(chosen); })) return;
  // The text shown must not be that of another macro.
  if (store_.MacroExists(name)) return ShowNothing();
  RemoveFromList(chosen);
}

// If the file cannot be read, throws and changes nothing.
void MacroEditor::Show(int index) {
  const MacroWindow& frmMacros = platform_.frmMacros;
  const std::u16string path = store_.MacroPath(frmMacros.lstMacroNames.Item(index));
  frmMacros.rtbMacroText.LoadFile(path, TextFileFormat::RichText);
  state_.MacroIndex = index;
  EnterState(frmMacros, MacroEditorState::Showing);
  style_.TakeStyleAtCaret();
}

void MacroEditor::ShowNothing() {
  const MacroWindow& frmMacros = platform_.frmMacros;
  state_.MacroIndex = -1;
  frmMacros.lstMacroNames.Select(-1);
  frmMacros.rtbMacroText.SetText(u"");
  EnterState(frmMacros, MacroEditorState::Empty);
}

void MacroEditor::RemoveFromList(int index) {
  platform_.frmMacros.lstMacroNames.Remove(index);
  ShowNothing();
}

void MacroEditor::FocusTextOrList() {
  const MacroWindow& frmMacros = platform_.frmMacros;
  IsBrowsing() ? frmMacros.lstMacroNames.SetFocus() : frmMacros.rtbMacroText.SetFocus();
}

void MacroEditor::rtbMacroText_GotFocus() {
  errors_.Guard(Procedure::frmMacros_Load, [this] {
    if (IsBrowsing()) FocusTextOrList();
  });
}

void MacroEditor::rtbMacroText_KeyDown(int& keyCode, int shift) {
  errors_.Guard(Procedure::frmMacros_Load, [this, &keyCode, shift] {
    if (IsBrowsing()) {
      keyCode = char_code::kSwallowed;
      FocusTextOrList();
    } else if (keyCode == key_code::kEscape && shift == 0) {
      keyCode = char_code::kSwallowed;
      platform_.frmMacros.rtbMacroText.SetText(u"");
    }
  });
}

void MacroEditor::cmdRun_Click() {
  errors_.Guard(Procedure::frmMacros_Load, [this] {
    state_.MacroToRun = platform_.frmMacros.rtbMacroText.Rtf();
    platform_.frmMacros.cmdClose.Click();
  });
}

void MacroEditor::cmdClose_Click() {
  platform_.frmMacros.window.Unload();
}

std::u16string MacroEditor::CurrentName() const {
  return platform_.frmMacros.lstMacroNames.Item(state_.MacroIndex);
}

void MacroEditor::SelectName(std::u16string_view name) {
  ListBox& names = platform_.frmMacros.lstMacroNames;
  if (!IsListed(name)) names.Append(name);
  state_.MacroIndex = IndexOf(name);
  names.ScrollToTop(state_.MacroIndex);
  names.Select(state_.MacroIndex);
}

int MacroEditor::IndexOf(std::u16string_view name) const {
  const ListBox& names = platform_.frmMacros.lstMacroNames;
  for (int i = 0; i < names.Count(); ++i) {
    if (names.Item(i) == name) return i;
  }
  return -1;
}

bool MacroEditor::IsBrowsing() const {
  return SaysNo(platform_.frmMacros.rtbMacroText.Tag());
}

}  // namespace verlume
