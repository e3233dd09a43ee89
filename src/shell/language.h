// The interface language: the fixed texts of the main window, set in one place.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class Language {
 public:
  Language(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Puts every caption and tool tip, the help file and the buttons of boxes into the language of
  // AppState::IsGreek, and saves the choice in the settings file.
  void ApplyLanguage();

  // The language has been applied: what is shown by other objects can follow.
  std::function<void()> onApplied;

  void mnuToolsLanguageEnglish_Click();
  void mnuToolsLanguageGreek_Click();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
