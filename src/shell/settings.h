// The settings file "Verlume.ini": sections of key=value lines. Each setting is read once at
// start-up and written on its own at the moment it changes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "shell/app_state.h"

namespace verlume {

// A file larger than this, in bytes, was not made by this program and is not read.
inline constexpr std::uint64_t kLargestSettingsFile = 1 << 20;

class Settings {
 public:
  Settings(const AppState& state, FileSystem& files) : state_(state), files_(files) {}

  // The whole file. Throws RunTimeFailure: 53 or 76 when it does not exist, 75 when it is too
  // large, or the number of another read error.
  std::u16string Text() const;

  // The value of a key, cut to size - 1 characters, or `missingMarker` when the file, the section
  // or the key is missing. Section and key are compared without regard to case; blanks and one pair
  // of quotes around a value are not part of it. Never fails.
  std::u16string ReadSetting(std::u16string_view section, std::u16string_view key,
                             std::u16string_view missingMarker, std::size_t size) const;

  // Replaces the key's line, or adds it, with the file and the section if they are missing. All
  // other lines stay as they are. Throws RunTimeFailure when the file cannot be written, or exists
  // but cannot be read.
  void WriteSetting(std::u16string_view section, std::u16string_view key,
                    std::u16string_view value);

  // The same for several keys of one section, in the order given and in one step: the file holds
  // all of them or, on failure, none.
  struct KeyValue {
    std::u16string_view key;
    std::u16string value;
  };
  void WriteSettings(std::u16string_view section, const std::vector<KeyValue>& values);

  // From now on writing does nothing and does not fail: the file must stay as it is.
  void StopWriting() { writes_ = false; }

 private:
  std::u16string TextToChange() const;

  const AppState& state_;
  FileSystem& files_;
  bool writes_ = true;
};

}  // namespace verlume
