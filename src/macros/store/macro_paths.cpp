#include "macros/store/macro_paths.h"

#include "shell/folders.h"

namespace verlume {
namespace {

// The extension with a capital for each bit that is set.
std::u16string ExtensionWith(unsigned capitals) {
  std::u16string extension(kMacroExtension);
  for (std::size_t i = 1; i < extension.size(); ++i, capitals >>= 1) {
    if (capitals & 1) extension[i] = static_cast<char16_t>(extension[i] - u'a' + u'A');
  }
  return extension;
}

}  // namespace

bool CanNameAMacro(std::u16string_view name, char16_t separator) {
  if (name.empty() || name.starts_with(u'.')) return false;
  // Both usual separators, whichever this platform uses.
  return name.find_first_of(u"/\\") == name.npos && name.find(separator) == name.npos;
}

std::u16string MacroPath(const AppState& state, const FileSystem& files, std::u16string_view name) {
  const std::u16string path =
      WithTrailingSeparator(state.MacrosFolder, files.Separator()).append(name);
  for (unsigned capitals = 0; capitals < 8; ++capitals) {
    const std::u16string file = path + ExtensionWith(capitals);
    if (files.IsFile(file)) return file;
  }
  return path + ExtensionWith(0);
}

bool MacroExists(const AppState& state, const FileSystem& files, std::u16string_view name) {
  // Without a folder the path would start at the root.
  return !state.MacrosFolder.empty() && CanNameAMacro(name, files.Separator()) &&
         files.IsFile(MacroPath(state, files, name));
}

}  // namespace verlume
