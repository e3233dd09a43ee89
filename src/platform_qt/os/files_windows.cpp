#include "platform_qt/os/files.h"

#include <windows.h>

#include "platform/run_time_failure.h"
#include "platform_qt/os/errors_windows.h"
#include "platform_qt/os/handle_windows.h"
#include "platform_qt/os/paths_windows.h"
#include "platform_qt/os/patience_windows.h"

namespace verlume::qt {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring_view AsWide(std::u16string_view text) {
  return {reinterpret_cast<const wchar_t*>(text.data()), text.size()};
}

// Follows links; folders can be opened, too.
Handle Open(const std::string& path, DWORD access) {
  return Handle(::CreateFileW(NativePath(path).c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                              FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

// While the file that is to be replaced is open, Windows denies access.
bool MovePatiently(const std::wstring& from, const std::wstring& to,
                   DWORD how = MOVEFILE_REPLACE_EXISTING) {
  const auto move = [&] {
    return ::MoveFileExW(from.c_str(), to.c_str(), how | MOVEFILE_WRITE_THROUGH) != 0;
  };
  return DonePatiently(move, {ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED});
}

bool IsLink(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(NativePath(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

}  // namespace

FileKind KindOf(const std::string& path) try {
  const Handle handle = Open(path, FILE_READ_ATTRIBUTES);
  BY_HANDLE_FILE_INFORMATION found;
  if (!handle) return FileKind::Nothing;
  if (::GetFileType(handle.Get()) != FILE_TYPE_DISK) return FileKind::Other;
  if (!::GetFileInformationByHandle(handle.Get(), &found)) return FileKind::Other;
  return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileKind::Folder
                                                                  : FileKind::File;
} catch (const RunTimeFailure&) {
  return FileKind::Nothing;
}

bool IsTaken(const std::string& path) {
  if (::GetFileAttributesW(NativePath(path).c_str()) != INVALID_FILE_ATTRIBUTES) return true;
  const DWORD error = ::GetLastError();
  return error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND;
}

bool IsNameOfDevice(std::u16string_view name) noexcept {
  return IsDevice(AsWide(name));
}

bool CanBeFileName(std::u16string_view name) noexcept {
  return IsFileName(AsWide(name));
}

std::string FolderOf(const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  if (separator == std::string::npos) return ".";
  const bool isRoot = separator == 0 || (separator == 2 && path[1] == ':');
  return path.substr(0, isRoot ? separator + 1 : separator);
}

std::uint64_t FileSize(const std::string& path) {
  const Handle handle = Open(path, FILE_READ_ATTRIBUTES);
  if (!handle) ThrowLastError(path);
  if (KindOf(path) != FileKind::File) throw RunTimeFailure(FailureNumber::PathFileAccessError);
  LARGE_INTEGER size;
  if (!::GetFileSizeEx(handle.Get(), &size)) ThrowLastError(path);
  return static_cast<std::uint64_t>(size.QuadPart);
}

void CheckWritable(const std::string& path) {
  if (!DonePatiently([&] { return bool(Open(path, GENERIC_WRITE)); })) ThrowLastError(path);
}

// A link to nothing is replaced itself: Windows does not say where it would lead.
std::string EndOfLinks(const std::string& path) {
  if (!IsLink(path)) return path;
  const Handle handle = Open(path, FILE_READ_ATTRIBUTES);
  if (!handle) return path;
  std::wstring end(::GetFinalPathNameByHandleW(handle.Get(), nullptr, 0, FILE_NAME_NORMALIZED),
                   L'\0');
  end.resize(::GetFinalPathNameByHandleW(handle.Get(), end.data(), static_cast<DWORD>(end.size()),
                                         FILE_NAME_NORMALIZED));
  const std::optional<std::string> name = Utf8Of(end);
  if (!name || name->empty()) throw RunTimeFailure(FailureNumber::PathFileAccessError);
  return *name;
}

std::vector<std::string> FilesIn(const std::string& folder) {
  WIN32_FIND_DATAW found;
  const HANDLE search =
      ::FindFirstFileExW((NativePath(folder) + L"\\*").c_str(), FindExInfoBasic, &found,
                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (search == INVALID_HANDLE_VALUE) {
    if (::GetLastError() == ERROR_FILE_NOT_FOUND) return {};  // the root of an empty drive
    ThrowLastError(folder);
  }
  std::vector<std::string> names;
  do {
    const std::optional<std::string> name = Utf8Of(found.cFileName);
    if (!name || (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) continue;
    if (KindOf(folder + '\\' + *name) == FileKind::File) names.push_back(*name);
  } while (::FindNextFileW(search, &found));
  const DWORD error = ::GetLastError();
  ::FindClose(search);
  if (error != ERROR_NO_MORE_FILES) ThrowError(error, folder);
  return names;
}

void RemoveFile(const std::string& path) {
  const std::wstring native = NativePath(path);
  if (!DonePatiently([&] { return ::DeleteFileW(native.c_str()) != 0; })) ThrowLastError(path);
}

void MoveInto(const std::string& from, const std::string& to) {
  if (!MovePatiently(NativePath(from), NativePath(to))) ThrowLastError(to);
}

bool MoveIntoFree(const std::string& from, const std::string& to) {
  if (MovePatiently(NativePath(from), NativePath(to), 0)) return true;
  const DWORD error = ::GetLastError();
  if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) return false;
  ThrowError(error, to);
}

bool CanMakeFilesIn(const std::string& folder) noexcept try {
  const std::string path =
      folder + "\\.verlume-" + ProcessNumber() + "-" + std::to_string(::GetTickCount64()) + ".try";
  return bool(Handle(::CreateFileW(
      NativePath(path).c_str(), GENERIC_WRITE | DELETE, kShareAll, nullptr, CREATE_NEW,
      FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr)));
} catch (const RunTimeFailure&) {
  return false;
}

bool CanWriteTo(const std::string& path) noexcept try {
  CheckWritable(path);
  return true;
} catch (const RunTimeFailure&) {
  return false;
}

bool TryToRemove(const std::string& path) noexcept try {
  return ::DeleteFileW(NativePath(path).c_str());
} catch (const RunTimeFailure&) {
  return false;
}

bool TryToRename(const std::string& from, const std::string& to) noexcept try {
  return MovePatiently(NativePath(from), NativePath(to));
} catch (const RunTimeFailure&) {
  return false;
}

std::string ProcessNumber() {
  return std::to_string(::GetCurrentProcessId());
}

}  // namespace verlume::qt
