#include "macros/macro_paths.h"

namespace verlume {
namespace {

bool StaysInFolder(std::u16string_view name, char16_t separator) {
  if (name.empty() || name == u"." || name == u"..") return false;
  // Both usual separators, whichever is this platform's.
  return name.find_first_of(u"/\\") == name.npos && name.find(separator) == name.npos;
}

}  // namespace

std::u16string WithTrailingSeparator(std::u16string_view path, char16_t separator) {
  std::u16string joined(path);
  if (!path.ends_with(separator)) joined += separator;
  return joined;
}

bool FolderExists(const FileSystem& files, std::u16string_view path) {
  return !path.empty() && files.IsFolder(path);
}

std::u16string MacroPath(const AppState& state, const FileSystem& files, std::u16string_view name) {
  std::u16string path = WithTrailingSeparator(state.MacrosFolder, files.Separator());
  path += name;
  return path + u".rtf";
}

bool MacroExists(const AppState& state, const FileSystem& files, std::u16string_view name) {
  // Without a folder the path would begin at the root.
  return !state.MacrosFolder.empty() && StaysInFolder(name, files.Separator()) &&
         files.IsFile(MacroPath(state, files, name));
}

}  // namespace verlume
