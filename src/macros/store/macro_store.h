// The macros folder and the macros in it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "macros/store/macro_paths.h"
#include "platform/platform.h"
#include "shell/error_report.h"
#include "shell/settings.h"
#include "shell/text_pair.h"

namespace verlume {

// Whether the name contains only characters that are allowed in the name of a new macro. True for
// "", which callers check first.
bool IsValidMacroName(std::u16string_view name);

class MacroStore {
 public:
  MacroStore(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Lets the user choose the macros folder (mnuFileMacrosFolder_Click) and saves it in the settings
  // file. Cancel changes nothing.
  void ChooseMacrosFolder();

  // Asks for a macros folder until there is a usable one (true) or the user declines (false). After
  // that there is no macros folder for the rest of the run, and the refusal says so.
  bool EnsureMacrosFolder(const TextPair& refusalText, const TextPair& refusalTitle);

  // The names of all macros in the folder, in the order of the file system. Files for whose names
  // CanNameAMacro is false are left out. Throws RunTimeFailure when the folder cannot be read.
  std::vector<std::u16string> ListMacroNames() const;
  bool MacroExists(std::u16string_view name) const;
  std::u16string MacroPath(std::u16string_view name) const;
  // The name of an existing macro in the letter case of its file.
  std::u16string StoredName(std::u16string_view name) const;

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
