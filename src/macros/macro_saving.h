// Saving the command pane as a macro.
#pragma once

#include <string>

#include "macros/store/macro_store.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class MacroSaving {
 public:
  MacroSaving(AppState& state, Platform& platform, ErrorReport& errors, MacroStore& store)
      : state_(state), platform_(platform), errors_(errors), store_(store) {}

  // Asks for a name, saves the command pane as the macro of that name, and empties the pane
  // (mnuToolsSaveMacro_Click). If the pane is empty, offers the macro editor instead. On failure
  // the pane stays as it is.
  void SaveCommandPaneAsMacro();

 private:
  void SaveUnderAName();
  void OfferTheEditor();
  std::u16string AskName();
  bool GivesUpSaving();
  bool WantsToReplace(std::u16string_view name);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  MacroStore& store_;
};

}  // namespace verlume
