#include "platform_qt/os/dictionaries.h"

#include <windows.h>

#include <optional>

#include "platform/run_time_failure.h"
#include "platform_qt/os/paths_windows.h"

namespace verlume::qt {
namespace {

// The path in the code page of the functions that take bytes; none if that lacks a character of it.
// For this program the code page is UTF-8 where Windows is new enough (see its manifest), and then
// lacks none.
std::optional<std::string> InCodePage(const std::wstring& path) {
  const int length = static_cast<int>(path.size());
  BOOL isLacking = FALSE;
  BOOL* lacking = ::GetACP() == CP_UTF8 ? nullptr : &isLacking;
  const DWORD exactly = lacking ? WC_NO_BEST_FIT_CHARS : 0;
  std::string bytes(path.size() * 4, '\0');
  bytes.resize(static_cast<std::size_t>(
      ::WideCharToMultiByte(CP_ACP, exactly, path.data(), length, bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, lacking)));
  if (isLacking) return std::nullopt;
  return bytes;
}

// With the names of eight letters, which most disks keep; "" if there is none.
std::wstring ShortPath(const std::wstring& path) {
  std::wstring found(::GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
  found.resize(::GetShortPathNameW(path.c_str(), found.data(), static_cast<DWORD>(found.size())));
  return found;
}

}  // namespace

std::string DictionaryFolder(const std::string& programFolder) {
  return programFolder + "/dictionaries";
}

std::string HunspellPath(const std::string& path) try {
  const std::wstring native = NativePath(path);
  if (const auto bytes = InCodePage(native)) return *bytes;
  return InCodePage(ShortPath(native)).value_or(path);
} catch (const RunTimeFailure&) {
  return path;
}

}  // namespace verlume::qt
