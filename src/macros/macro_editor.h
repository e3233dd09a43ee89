// The macro editor: the window frmMacros, in which macros are looked through, written, changed,
// deleted and run.
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

  // Shows the window until its Close or Run is pressed (mnuToolsEditMacros_Click). A macro that is
  // run is put into the command pane, and Enter is pressed there.
  void OpenMacroEditor();

  // Only the program closes the window; the user is told so.
  void Form_QueryUnload(bool& cancel, UnloadMode mode);
  // Shows the macro; while one is being edited the list stays on that.
  void lstMacroNames_Click();
  // While nothing is being edited the keyboard is passed on to the list.
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
  void HandOver();

  void Show(int index);
  void ShowNothing();
  void TakeFromList(int index);
  // Where the keyboard belongs: to the text while it is edited, else to the list. The text alone
  // would not pass it on when it has it already.
  void FocusTextOrList();
  void BeginNew(std::u16string_view name);
  // Writes the text under the name, which becomes the one shown.
  void Save(std::u16string_view name);

  std::u16string AskOtherName(std::u16string_view current);
  bool TellsNothingToSave(const TextPair& title);
  bool Confirms(const TextPair& question, const TextPair& title, std::u16string_view name);

  // The name at AppState::MacroIndex.
  std::u16string CurrentName() const;
  // Makes the name the one that is shown in the list, where it stands once.
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
