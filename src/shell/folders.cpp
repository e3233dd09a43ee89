#include "shell/folders.h"

namespace verlume {

std::u16string WithTrailingSeparator(std::u16string_view path, char16_t separator) {
  std::u16string joined(path);
  const bool endsInSlash = separator == u'\\' && path.ends_with(u'/');
  if (!path.ends_with(separator) && !endsInSlash) joined += separator;
  return joined;
}

bool FolderExists(const FileSystem& files, std::u16string_view path) {
  return !path.empty() && files.IsFolder(path);
}

}  // namespace verlume
