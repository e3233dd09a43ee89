// Checking the spelling of what is typed: whether it is on, and the user's own words, one a line in
// the file "Verlume.words" beside the settings.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class SpellCheck {
 public:
  SpellCheck(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // When the settings have been read. A file of words that cannot be read counts as empty.
  void Start();

  // Turns it on or off, and saves the choice.
  void mnuToolsCheckSpelling_Click();

  // The word is right from now on, and in later runs if it can be saved.
  void AddWord(std::u16string_view word);

 private:
  std::u16string WordsFile() const;
  // Empty if there is no file.
  std::u16string SavedText() const;
  void ApplyChoice();

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  std::vector<std::u16string> words_;
};

}  // namespace verlume
