// The buttons of the macro editor that change macros.
#include "macros/macro_editor.h"
#include "macros/macro_editor_states.h"
#include "macros/macro_editor_texts.h"
#include "macros/macro_name_question.h"
#include "macros/macro_name_texts.h"

namespace verlume {

namespace texts = macro_editor_texts;

void MacroEditor::cmdAdd_Click() {
  errors_.Guard(Procedure::cmdAdd_Click, [this] {
    const std::u16string name = AskMacroName(state_, platform_, texts::add::kTitle,
                                             texts::add::kPrompt.In(state_.IsGreek), u"");
    if (name.empty()) return;
    if (store_.MacroExists(name)) {
      platform_.dialogs.ShowMessage(Refusal(texts::add::kExists.Fill(state_.IsGreek, {name}),
                                            texts::add::kTitle.In(state_.IsGreek)));
    } else {
      BeginNew(name);
    }
  });
}

// No file is written yet. If setting the style fails, the new macro stays and can be written
// without it.
void MacroEditor::BeginNew(std::u16string_view name) {
  EnterState(platform_.frmMacros, MacroEditorState::New);
  SelectName(name);
  style_.StartEmptyText();
}

void MacroEditor::cmdEdit_Click() {
  errors_.Guard(Procedure::frmMacros_Load, [this] {
    RichTextBox& text = platform_.frmMacros.rtbMacroText;
    EnterState(platform_.frmMacros, MacroEditorState::Editing);
    text.Select(text.TextLength(), 0);
    text.SetFocus();
  });
}

void MacroEditor::cmdSave_Click() {
  errors_.Guard(Procedure::cmdSave_Click, [this] {
    if (!RefuseEmptyText(texts::save::kTitle)) Save(CurrentName());
  });
  FocusTextOrList();
}

void MacroEditor::cmdSaveAs_Click() {
  errors_.Guard(Procedure::cmdSaveAs_Click, [this] {
    if (RefuseEmptyText(texts::save_as::kTitle)) return;
    const std::u16string name = AskOtherName(CurrentName());
    if (!name.empty()) Save(name);
  });
  FocusTextOrList();
}

// If the file cannot be written, nothing changes: the text can be saved again.
void MacroEditor::Save(std::u16string_view name) {
  platform_.frmMacros.rtbMacroText.SaveFile(store_.MacroPath(name), TextFileFormat::RichText);
  if (name != CurrentName()) SelectName(name);
  EnterState(platform_.frmMacros, MacroEditorState::Showing);
}

void MacroEditor::cmdCancel_Click() {
  errors_.Guard(Procedure::cmdCancel_Click, [this] {
    const std::u16string name = CurrentName();
    if (!Confirms(texts::cancel::kQuestion, texts::cancel::kTitle, name)) return;
    if (store_.MacroExists(name)) {
      Show(state_.MacroIndex);
    } else {
      RemoveFromList(state_.MacroIndex);
    }
  });
  FocusTextOrList();
}

void MacroEditor::cmdDelete_Click() {
  const std::u16string name = CurrentName();
  const bool isDone = errors_.Guard(Procedure::cmdDelete_Click, [this, &name] {
    if (!Confirms(texts::remove::kQuestion, texts::remove::kTitle, name)) return;
    platform_.files.Delete(store_.MacroPath(name));
    RemoveFromList(state_.MacroIndex);
  });
  // If the file is gone although deleting it failed, the macro leaves the list too.
  if (!isDone && !store_.MacroExists(name)) RemoveFromList(state_.MacroIndex);
  FocusTextOrList();
}

// A name that no macro has, or that the user agrees to replace, or the current one; "" when the
// user gives up.
std::u16string MacroEditor::AskOtherName(std::u16string_view current) {
  const std::u16string prompt = texts::save_as::kPrompt.Fill(state_.IsGreek, {current});
  std::u16string name;
  while (!platform_.application.HasEnded()) {
    name = AskMacroName(state_, platform_, texts::save_as::kTitle, prompt, name);
    if (name.empty() || name == current || !store_.MacroExists(name)) return name;
    if (Confirms(macro_name_texts::kReplace, texts::save_as::kTitle, name)) {
      return store_.StoredName(name);
    }
  }
  return {};
}

bool MacroEditor::RefuseEmptyText(const TextPair& title) {
  if (platform_.frmMacros.rtbMacroText.TextLength() > 0) return false;
  platform_.dialogs.ShowMessage(
      Note(texts::save::kNothing.In(state_.IsGreek), title.In(state_.IsGreek)));
  return true;
}

bool MacroEditor::Confirms(const TextPair& question, const TextPair& title,
                           std::u16string_view name) {
  const Message box =
      Question(question.Fill(state_.IsGreek, {name}), title.In(state_.IsGreek), Answer::No);
  return platform_.dialogs.ShowMessage(box) == Answer::Yes;
}

}  // namespace verlume
