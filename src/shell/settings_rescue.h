// Copies a settings file with errors before the program writes its own settings into it, so that
// nothing the user wrote is lost.
#pragma once

#include <functional>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "shell/app_state.h"
#include "shell/settings.h"

namespace verlume {

enum class SettingsTrouble {
  None,          // the file is valid or missing, or an earlier start has reported it
  InvalidValue,  // a value is not of its key's type; the file was copied
  Damaged,       // the file is not text; it was copied and emptied
  Unreadable,    // the file cannot be read; it stays as it is, and nothing is written
  CopyFailed,    // invalid or damaged, but not copied; it stays, and nothing is written
};

// The path of the copy: the settings file's path with ".bad" appended.
std::u16string SettingsCopyPath(const AppState& state);

// Checks the settings file before anything is written to it, and copies it if it cannot be used.
// AppState must already hold the default language and font, which a start with missing keys writes.
// An existing copy is replaced, unless it is a copy of this file from before such starts changed
// it. If the copy fails, `settings` writes nothing from then on. Never throws: it calls
// `logFailure` while it handles the exception that made the file unreadable or the copy fail.
SettingsTrouble SecureSettingsFile(const AppState& state, FileSystem& files, Settings& settings,
                                   const std::function<void()>& logFailure);

// The message that tells the user. Not for None.
Message SettingsTroubleNote(SettingsTrouble trouble, const AppState& state);

}  // namespace verlume
