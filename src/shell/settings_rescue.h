// A settings file that cannot be used whole is kept before the program writes a settings file of
// its own: nothing that somebody has written into it is lost.
#pragma once

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "shell/app_state.h"
#include "shell/settings.h"

namespace verlume {

enum class SettingsTrouble {
  None,         // the file can be used, there is none, or the start that kept it has told of it
  ValueKept,    // a value is none of its kind; a copy is kept
  DamageKept,   // it is no text; a copy is kept, and the file is begun anew
  Unreadable,   // it cannot be read: it stays as it is, and nothing is written
  CopyNotKept,  // as the two above, but no copy could be made: it stays, and nothing is written
};

// The copy's path: the file's own with ".bad" behind it.
std::u16string PathOfKeptSettings(const AppState& state);

// Looks at the settings file before anything is written to it, when AppState holds the language and
// the font that a start with missing keys writes. Keeps a copy where the file cannot be used; one
// that is there is replaced, unless it already is what the file was before such starts. Where that
// is not possible, `settings` writes nothing from then on. Never fails.
SettingsTrouble SecureSettingsFile(const AppState& state, FileSystem& files, Settings& settings);

// What the user is told of it. Not for None.
Message NoteOfSettingsTrouble(SettingsTrouble trouble, const AppState& state);

}  // namespace verlume
