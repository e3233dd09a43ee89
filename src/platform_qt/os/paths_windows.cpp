#include "platform_qt/os/paths_windows.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "platform/run_time_failure.h"

namespace verlume::qt {
namespace {

// Longer paths need the form that begins with this.
constexpr std::size_t kLongestUsual = 240;
constexpr std::wstring_view kLongPrefix = L"\\\\?\\";
constexpr std::wstring_view kLongNetworkPrefix = L"\\\\?\\UNC";

[[noreturn]] void Refuse() {
  throw RunTimeFailure(FailureNumber::PathFileAccessError);
}

std::wstring Utf16Of(const std::string& text) {
  if (text.empty()) return {};
  const int bytes = static_cast<int>(text.size());
  const int length =
      ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, nullptr, 0);
  if (length == 0) Refuse();
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, wide.data(), length);
  return wide;
}

// Devices have these names in every folder, with any extension, in any letter case. Windows takes
// superscript figures for figures there.
bool IsDevice(std::wstring_view name) {
  std::wstring stem(name.substr(0, name.find(L'.')));
  while (!stem.empty() && stem.back() == L' ') stem.pop_back();
  for (wchar_t& c : stem) {
    if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
  }
  static constexpr std::array<std::wstring_view, 6> kDevices{L"CON", L"PRN",    L"AUX",
                                                             L"NUL", L"CONIN$", L"CONOUT$"};
  if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
  constexpr std::wstring_view kNumbers = L"0123456789\u00B9\u00B2\u00B3";
  return stem.size() == 4 && (stem.starts_with(L"COM") || stem.starts_with(L"LPT")) &&
         kNumbers.find(stem.back()) != std::wstring_view::npos;
}

// Where the names begin: behind "C:\", "\\server\" or nothing.
std::size_t RootLength(std::wstring_view path) {
  if (path.size() >= 2 && path[1] == L':') return 2;
  return path.starts_with(L"\\\\") ? 2 : 0;
}

void CheckNames(std::wstring_view path) {
  std::wstring_view rest = path.substr(RootLength(path));
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(L'\\'), rest.size());
    const std::wstring_view name = rest.substr(0, end);
    if (!name.empty() && name != L"." && name != L".." && !IsFileName(name)) Refuse();
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

std::wstring LongForm(const std::wstring& path) {
  const DWORD length = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(length, L'\0');
  full.resize(::GetFullPathNameW(path.c_str(), length, full.data(), nullptr));
  const bool isOfNetwork = full.starts_with(L"\\\\");
  return std::wstring(isOfNetwork ? kLongNetworkPrefix : kLongPrefix) +
         (isOfNetwork ? full.substr(1) : full);
}

}  // namespace

bool IsFileName(std::wstring_view name) {
  if (name.empty() || name.back() == L'.' || name.back() == L' ') return false;
  constexpr std::wstring_view kForbidden = L"<>:\"/\\|?*";
  return std::none_of(name.begin(), name.end(),
                      [kForbidden](wchar_t c) {
                        return c < L' ' || kForbidden.find(c) != std::wstring_view::npos;
                      }) &&
         !IsDevice(name);
}

std::wstring NativePath(const std::string& path) {
  std::wstring wide = Utf16Of(path);
  if (wide.find(L'\0') != std::wstring::npos) Refuse();
  std::replace(wide.begin(), wide.end(), L'/', L'\\');
  if (wide.starts_with(kLongPrefix)) return wide;
  CheckNames(wide);
  return wide.size() > kLongestUsual ? LongForm(wide) : wide;
}

std::optional<std::string> Utf8Of(std::wstring_view text) {
  if (text.empty()) return std::string();
  const int length = static_cast<int>(text.size());
  const int bytes = ::WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), length,
                                          nullptr, 0, nullptr, nullptr);
  if (bytes == 0) return std::nullopt;
  std::string utf8(static_cast<std::size_t>(bytes), '\0');
  ::WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), length, utf8.data(), bytes,
                        nullptr, nullptr);
  return utf8;
}

}  // namespace verlume::qt
