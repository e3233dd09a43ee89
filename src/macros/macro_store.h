// The macros folder.
#pragma once

#include "macros/macro_paths.h"
#include "platform/platform.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class MacroStore {
 public:
  MacroStore(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Lets the user choose the macros folder (mnuFileMacrosFolder_Click) and keeps it in the
  // settings file. A cancel changes nothing.
  void ChooseMacrosFolder();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
