// The settings file's keys: where each goes at start-up, and how the local font is written.
#pragma once

#include "platform/main_window.h"
#include "shell/app_state.h"
#include "shell/settings.h"

namespace verlume {

// The sizes of the local font that the program accepts, in points.
inline constexpr double kSmallestFontSize = 8;
inline constexpr double kLargestFontSize = 11;

// The nearest size that the program accepts; rich text carries sizes in half points.
double AcceptedFontSize(double points);

// What every key but the language comes to where it is missing: AppState and the menu ticks. The
// local font is the dialogue pane's.
void SetSettingDefaults(AppState& state, const MainWindow& frmMain);

// Reads the language alone; what is not 1 is English.
void ReadLanguage(AppState& state, const Settings& settings);

// Reads every other key, one after the other, into AppState and what of the window shows it. A
// missing key leaves what is there. A text that is no value of its key's type throws RunTimeFailure
// (13, or 6 for a number out of range); the keys behind it are not read. A font size becomes the
// nearest one that is accepted, and a colour that is none (negative) counts as missing.
void ReadSettings(AppState& state, const MainWindow& frmMain, const Settings& settings);

// Whether ReadSettings can read them all.
bool EveryValueIsOfItsKind(const Settings& settings);

// What the file says of the language and the local font.
std::u16string_view LanguageText(const AppState& state);
std::vector<Settings::KeyValue> FontSettings(const AppState& state);

// Writes the local font, all keys in one step. Throws RunTimeFailure when the file cannot be
// written.
void WriteFontSettings(const AppState& state, Settings& settings);

}  // namespace verlume
