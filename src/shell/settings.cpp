#include "shell/settings.h"

#include "platform/run_time_failure.h"
#include "richtext/characters.h"
#include "shell/ini_text.h"

namespace verlume {
namespace {

// At most `length` characters, and none cut in half.
std::u16string_view CutAt(std::u16string_view text, std::size_t length) {
  if (text.size() <= length) return text;
  const bool halves = length > 0 && richtext::IsHighSurrogate(text[length - 1]);
  return text.substr(0, halves ? length - 1 : length);
}

}  // namespace

std::u16string Settings::Text() const {
  if (files_.SizeOf(state_.IniFile) > kLargestSettingsFile) {
    throw RunTimeFailure(FailureNumber::PathFileAccessError);
  }
  return files_.ReadText(state_.IniFile);
}

std::u16string Settings::ReadSetting(std::u16string_view section, std::u16string_view key,
                                     std::u16string_view missingMarker, std::size_t size) const {
  try {
    const std::u16string text = Text();
    const std::u16string_view value = ini_text::Read(text, section, key).value_or(missingMarker);
    return std::u16string(CutAt(value.substr(0, value.find(u'\0')), size > 0 ? size - 1 : 0));
  } catch (const RunTimeFailure&) {
    return std::u16string(missingMarker);
  }
}

void Settings::WriteSetting(std::u16string_view section, std::u16string_view key,
                            std::u16string_view value) {
  WriteSettings(section, {{key, std::u16string(value)}});
}

void Settings::WriteSettings(std::u16string_view section, const std::vector<KeyValue>& values) {
  if (!writes_) return;
  std::u16string text = TextToChange();
  for (const auto& [key, value] : values) text = ini_text::Write(text, section, key, value);
  files_.ReplaceText(state_.IniFile, text, Readers::OwnerOnly);
}

// A file that exists but cannot be read is not replaced: its other lines would be lost.
std::u16string Settings::TextToChange() const {
  try {
    return Text();
  } catch (const RunTimeFailure& failure) {
    if (failure.number != FailureNumber::FileNotFound) throw;
    return {};
  }
}

}  // namespace verlume
