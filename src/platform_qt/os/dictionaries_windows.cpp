#include "platform/run_time_failure.h"
#include "platform_qt/os/dictionaries.h"
#include "platform_qt/os/paths_windows.h"

namespace verlume::qt {

std::string DictionaryFolder(const std::string& programFolder) {
  return programFolder + "/dictionaries";
}

// Hunspell takes a path for UTF-8 only in the long form.
std::string HunspellPath(const std::string& path) try {
  return Utf8Of(LongPath(path)).value_or(path);
} catch (const RunTimeFailure&) {
  return path;
}

}  // namespace verlume::qt
