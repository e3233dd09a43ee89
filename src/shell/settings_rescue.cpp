#include "shell/settings_rescue.h"

#include "platform/run_time_failure.h"
#include "shell/ini_text.h"
#include "shell/setting_names.h"
#include "shell/settings_reader.h"
#include "shell/settings_rescue_texts.h"

namespace verlume {
namespace {

using namespace settings_rescue_texts;

bool IsMissing(const RunTimeFailure& failure) {
  return failure.number == FailureNumber::FileNotFound ||
         failure.number == FailureNumber::PathNotFound;
}

SettingsTrouble Inspect(const Settings& settings) {
  try {
    if (settings.Text().find(u'\0') != std::u16string::npos) return SettingsTrouble::DamageKept;
    return EveryValueIsOfItsKind(settings) ? SettingsTrouble::None : SettingsTrouble::ValueKept;
  } catch (const RunTimeFailure& failure) {
    return IsMissing(failure) ? SettingsTrouble::None : SettingsTrouble::Unreadable;
  }
}

// What a start that could read no font key makes of a settings file.
std::u16string AfterAStart(std::u16string text, const AppState& state) {
  text =
      ini_text::Write(text, setting_section::kGeneral, setting_key::kLanguage, LanguageText(state));
  for (const auto& [key, value] : FontSettings(state)) {
    text = ini_text::Write(text, setting_section::kFont, key, value);
  }
  return text;
}

// Whether the copy of an earlier start has it all: the file that it was made of, and which such a
// start has left with the usual font, is worth no copy in that one's place.
bool IsKept(const AppState& state, const FileSystem& files, const std::u16string& text) {
  try {
    const std::u16string path = PathOfKeptSettings(state);
    if (files.SizeOf(path) > kLargestSettingsFile) return false;
    const std::u16string kept = files.ReadText(path);
    return kept == text || AfterAStart(kept, state) == text;
  } catch (const RunTimeFailure&) {
    return false;
  }
}

// False when a copy is there already.
bool Keep(const AppState& state, FileSystem& files, const Settings& settings) {
  if (IsKept(state, files, settings.Text())) return false;
  files.ReplaceBytes(PathOfKeptSettings(state), files.ReadBytes(state.IniFile));
  return true;
}

}  // namespace

std::u16string PathOfKeptSettings(const AppState& state) {
  return state.IniFile + u".bad";
}

SettingsTrouble SecureSettingsFile(const AppState& state, FileSystem& files, Settings& settings) {
  SettingsTrouble trouble = Inspect(settings);
  try {
    if (trouble == SettingsTrouble::ValueKept && !Keep(state, files, settings)) {
      return SettingsTrouble::None;
    }
    if (trouble == SettingsTrouble::DamageKept) {
      Keep(state, files, settings);
      files.ReplaceText(state.IniFile, u"");
    }
  } catch (const RunTimeFailure&) {
    trouble = SettingsTrouble::CopyNotKept;
  }
  if (trouble == SettingsTrouble::Unreadable || trouble == SettingsTrouble::CopyNotKept) {
    settings.StopWriting();
  }
  return trouble;
}

Message NoteOfSettingsTrouble(SettingsTrouble trouble, const AppState& state) {
  const std::u16string kept = PathOfKeptSettings(state);
  const auto inBoth = [](const TextPair& text, std::u16string_view path) {
    return text.Fill(false, {path}) + u"\r\n\r\n\r\n" + text.Fill(true, {path});
  };
  const auto note = [&state](const std::u16string& text) {
    return Note(text, kTitle.In(state.IsGreek));
  };
  switch (trouble) {
    // Such a file does not tell the user's language.
    case SettingsTrouble::Unreadable:
      return note(inBoth(kUnreadable, state.IniFile));
    case SettingsTrouble::DamageKept:
      return note(inBoth(kDamageKept, kept));
    case SettingsTrouble::CopyNotKept:
      return note(kCopyNotKept.Fill(state.IsGreek, {state.IniFile, kept}));
    default:
      return note(kValueKept.Fill(state.IsGreek, {kept}));
  }
}

}  // namespace verlume
