#include "platform_qt/os/dictionaries.h"

namespace verlume::qt {

std::string DictionaryFolder(const std::string&) {
  return "/usr/share/hunspell";
}

std::string HunspellPath(const std::string& path) {
  return path;
}

}  // namespace verlume::qt
