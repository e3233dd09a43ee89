// The macros folder and the names in it.
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

// Whether the name holds none of the characters that no macro's name may hold. "" passes; callers
// look at it before.
bool IsValidMacroName(std::u16string_view name);

class MacroStore {
 public:
  MacroStore(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Lets the user choose the macros folder (mnuFileMacrosFolder_Click) and keeps it in the
  // settings file. A cancel changes nothing.
  void ChooseMacrosFolder();

  // Asks for a macros folder until there is a usable one (true) or the user wants none: then there
  // is none for the rest of the run, which the refusal tells.
  bool EnsureMacrosFolder(const TextPair& refusalText, const TextPair& refusalTitle);

  // The names of all macros in the folder, in the order in which the system gives them; a file that
  // can be no macro's (CanNameAMacro) is left out. Throws RunTimeFailure where the folder cannot be
  // read.
  std::vector<std::u16string> ListMacroNames() const;
  bool MacroExists(std::u16string_view name) const;
  std::u16string MacroPath(std::u16string_view name) const;
  // The name of an existing macro in the letter case in which the folder has it.
  std::u16string StoredName(std::u16string_view name) const;

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
