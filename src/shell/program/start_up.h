// Start-up: everything that is prepared before the user types.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/language.h"
#include "shell/settings.h"

namespace verlume {

struct FolderTexts;

class StartUp {
 public:
  // The steps of start-up that other objects perform.
  struct Steps {
    std::function<void()> resetConnection;
    std::function<std::u16string()> buildProtocolMarker;
    std::function<void()> applyCommandStyle;
  };

  StartUp(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings,
          Language& language, Steps steps);

  // Fills AppState and reads the settings file, before the window is shown. A failure stops this
  // and is reported (203); the program goes on with what was set so far. Then starts the timer, and
  // tells the user if the settings file could not be used.
  void Form_Load();

  // Called when the window has been laid out: applies the text style, and asks for the log and
  // macros folders while they are missing.
  void freeSizer1_PostLayout();

 private:
  void SetPaths();
  void SetInitialValues();
  void ClearWindow();
  void SetNickname();
  void CheckLogFolder();
  void CheckMacrosFolder();
  // True when the user wants to choose the folder now.
  bool AsksForFolder(const FolderTexts& texts);
  void TellAfterNo(const FolderTexts& texts);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  Language& language_;
  Steps steps_;
};

}  // namespace verlume
