// The keys of the settings file: how each is read at start-up, and how the local font is written.
#pragma once

#include "platform/main_window.h"
#include "shell/app_state.h"
#include "shell/settings.h"

namespace verlume {

// The sizes of the local font that the program accepts, in points.
inline constexpr double kSmallestFontSize = 8;
inline constexpr double kLargestFontSize = 11;

// The nearest accepted size. Sizes are multiples of half a point, as in rich text.
double AcceptedFontSize(double points);

// Sets AppState and the menu ticks to the defaults of all keys but the language. The default of the
// local font is the dialogue pane's font.
void SetSettingDefaults(AppState& state, const MainWindow& frmMain);

// Reads only the language: 1 is Greek, everything else English.
void ReadLanguage(AppState& state, const Settings& settings);

// Reads all other keys in order, into AppState and the controls that show them. A missing key
// changes nothing. A text that is not a value of its key's type throws RunTimeFailure (13, or 6 for
// a number out of range), and the keys after it are not read. A font size becomes the nearest
// accepted one; a negative colour counts as missing.
void ReadSettings(AppState& state, const MainWindow& frmMain, const Settings& settings);

// Whether ReadSettings can read every key.
bool AllValuesAreValid(const Settings& settings);

// The choice of Tools > Private conversations as it is written into the file, and by the ticks of
// the menu.
std::u16string_view OfferText(PrivacyOffer offer);
void ShowOffer(const AppState& state, const MainWindow& frmMain);

// Whether the router may be asked for the port, in the same way.
std::u16string RouterChoiceText(RouterChoice choice);
void ShowRouterChoice(const AppState& state, const MainWindow& frmMain);

// The language and the local font as they are written into the file.
std::u16string_view LanguageText(const AppState& state);
std::vector<Settings::KeyValue> FontSettings(const AppState& state);

// Writes the local font, all keys in one step. Throws RunTimeFailure when the file cannot be
// written.
void WriteFontSettings(const AppState& state, Settings& settings);

}  // namespace verlume
