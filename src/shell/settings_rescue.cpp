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

SettingsTrouble Inspect(const Settings& settings, const std::function<void()>& logFailure) {
  try {
    if (settings.Text().find(u'\0') != std::u16string::npos) return SettingsTrouble::Damaged;
    return AllValuesAreValid(settings) ? SettingsTrouble::None : SettingsTrouble::InvalidValue;
  } catch (const RunTimeFailure& failure) {
    if (IsMissing(failure)) return SettingsTrouble::None;
    logFailure();
    return SettingsTrouble::Unreadable;
  }
}

// The file as a start leaves it that could not read the font keys: it writes the language and the
// default font.
std::u16string AsLeftByStartUp(std::u16string text, const AppState& state) {
  text =
      ini_text::Write(text, setting_section::kGeneral, setting_key::kLanguage, LanguageText(state));
  for (const auto& [key, value] : FontSettings(state)) {
    text = ini_text::Write(text, setting_section::kFont, key, value);
  }
  return text;
}

// Whether an earlier start has copied this file. That start may then have changed the font in it to
// the default; such a file must not replace the copy, which still has the user's font.
bool IsCopied(const AppState& state, const FileSystem& files, const std::u16string& text) {
  try {
    const std::u16string path = SettingsCopyPath(state);
    if (files.SizeOf(path) > kLargestSettingsFile) return false;
    const std::u16string kept = files.ReadText(path);
    return kept == text || AsLeftByStartUp(kept, state) == text;
  } catch (const RunTimeFailure&) {
    return false;
  }
}

// Returns false when there already is a copy of this file.
bool MakeCopy(const AppState& state, FileSystem& files, const Settings& settings) {
  if (IsCopied(state, files, settings.Text())) return false;
  files.ReplaceBytes(SettingsCopyPath(state), files.ReadBytes(state.IniFile), Readers::OwnerOnly);
  return true;
}

}  // namespace

std::u16string SettingsCopyPath(const AppState& state) {
  return state.IniFile + u".bad";
}

SettingsTrouble SecureSettingsFile(const AppState& state, FileSystem& files, Settings& settings,
                                   const std::function<void()>& logFailure) {
  SettingsTrouble trouble = Inspect(settings, logFailure);
  try {
    if (trouble == SettingsTrouble::InvalidValue && !MakeCopy(state, files, settings)) {
      return SettingsTrouble::None;
    }
    if (trouble == SettingsTrouble::Damaged) {
      MakeCopy(state, files, settings);
      files.ReplaceText(state.IniFile, u"", Readers::OwnerOnly);
    }
  } catch (const RunTimeFailure&) {
    logFailure();
    trouble = SettingsTrouble::CopyFailed;
  }
  if (trouble == SettingsTrouble::Unreadable || trouble == SettingsTrouble::CopyFailed) {
    settings.StopWriting();
  }
  return trouble;
}

Message SettingsTroubleNote(SettingsTrouble trouble, const AppState& state) {
  const std::u16string kept = SettingsCopyPath(state);
  const auto inBoth = [](const TextPair& text, std::u16string_view path) {
    return text.Fill(false, {path}) + u"\r\n\r\n\r\n" + text.Fill(true, {path});
  };
  const auto note = [&state](const std::u16string& text) {
    return Note(text, kTitle.In(state.IsGreek));
  };
  switch (trouble) {
    // The user's language is unknown, because it is in that file.
    case SettingsTrouble::Unreadable:
      return note(inBoth(kUnreadable, state.IniFile));
    case SettingsTrouble::Damaged:
      return note(inBoth(kDamaged, kept));
    case SettingsTrouble::CopyFailed:
      return note(kCopyFailed.Fill(state.IsGreek, {state.IniFile, kept}));
    default:
      return note(kInvalidValue.Fill(state.IsGreek, {kept}));
  }
}

}  // namespace verlume
