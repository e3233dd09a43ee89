// The macro editor: the window frmMacros, in which macros are viewed, written, changed, deleted and
// run.
#pragma once

#include <string>
#include <string_view>

#include "macros/macro_style.h"
#include "macros/store/macro_store.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class MacroEditor {
 public:
  MacroEditor(AppState& state, Platform& platform, ErrorReport& errors, MacroStore& store,
              MacroStyle& style)
      : state_(state), platform_(platform), errors_(errors), store_(store), style_(style) {}

  // Shows the window until Close or Run is pressed (mnuToolsEditMacros_Click). Run puts the macro
  // into the command pane and presses Enter there; what was half typed is then put back.
  void OpenMacroEditor();

  // Only the program may close the window; tells the user so.
  void Form_QueryUnload(bool& cancel, UnloadMode mode);
  // Shows the chosen macro. While a macro is being edited, the list stays on that one.
  void lstMacroNames_Click();
  // While nothing is being edited, passes the focus on to the list.
  void rtbMacroText_GotFocus();
  void rtbMacroText_KeyDown(int& keyCode, int shift);

  void cmdAdd_Click();
  void cmdEdit_Click();
  void cmdSave_Click();
  void cmdSaveAs_Click();
  void cmdCancel_Click();
  void cmdDelete_Click();
  void cmdRun_Click();
  void cmdClose_Click();

 private:
  void ShowWindow();
  void Load();
  void SetCaptions();
  void RunChosenMacro();

  void Show(int index);
  void ShowNothing();
  void RemoveFromList(int index);
  // Gives the focus to the text while it is being edited, else to the list. rtbMacroText_GotFocus
  // is not enough for that: it is not raised when the text already has the focus.
  void FocusTextOrList();
  void BeginNew(std::u16string_view name);
  // Saves the text as the macro of that name, and shows that macro.
  void Save(std::u16string_view name);

  std::u16string AskOtherName(std::u16string_view current);
  bool RefuseEmptyText(const TextPair& title);
  bool Confirms(const TextPair& question, const TextPair& title, std::u16string_view name);

  // The name at AppState::MacroIndex.
  std::u16string CurrentName() const;
  // Selects the name in the list, and first adds it if it is missing.
  void SelectName(std::u16string_view name);
  bool IsListed(std::u16string_view name) const { return IndexOf(name) >= 0; }
  int IndexOf(std::u16string_view name) const;
  bool IsBrowsing() const;

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  MacroStore& store_;
  MacroStyle& style_;
};

}  // namespace verlume
