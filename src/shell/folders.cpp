#include "shell/folders.h"

namespace verlume {

std::u16string WithTrailingSeparator(std::u16string_view path, char16_t separator) {
  std::u16string joined(path);
  if (!path.ends_with(separator)) joined += separator;
  return joined;
}

bool FolderExists(const FileSystem& files, std::u16string_view path) {
  return !path.empty() && files.IsFolder(path);
}

}  // namespace verlume
