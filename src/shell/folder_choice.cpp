#include "shell/folder_choice.h"

#include "platform/run_time_failure.h"
#include "shell/folders.h"

namespace verlume {

std::optional<std::u16string> ChooseFolder(Platform& platform, std::u16string_view title,
                                           std::u16string_view current,
                                           std::u16string_view suggestion) {
  const std::u16string initialFolder = FolderExists(platform.files, current)
                                           ? std::u16string(current)
                                           : platform.application.SettingsFolder();
  try {
    return platform.dlgControl.ChooseFolder(title, initialFolder, suggestion);
  } catch (const RunTimeFailure& failure) {
    if (failure.number != FailureNumber::Cancelled) throw;
    return std::nullopt;
  }
}

}  // namespace verlume
