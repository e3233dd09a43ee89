#include <windows.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "platform/run_time_failure.h"
#include "platform_qt/os/errors_windows.h"
#include "platform_qt/os/files.h"
#include "platform_qt/os/handle_windows.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/os/paths_windows.h"
#include "platform_qt/os/patience_windows.h"
#include "platform_qt/os/permissions_windows.h"

namespace verlume::qt {
namespace {

constexpr DWORD kEveryoneMay = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// What is locked lies behind every content: Windows keeps others from reading what is locked.
constexpr DWORD kLockedHigh = 0x7FFFFFFF;

HANDLE HandleOf(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);
}

std::intptr_t Open(const std::string& path, Opening opening, Readers readers) {
  const bool isReading = opening == Opening::ToRead || opening == Opening::ToReadNoLink;
  DWORD disposition = OPEN_EXISTING;
  if (opening == Opening::ToAppend) disposition = OPEN_ALWAYS;
  if (opening == Opening::ToMake) disposition = CREATE_NEW;
  std::optional<OwnerOnly> owner;
  if (readers == Readers::OwnerOnly && !isReading) owner.emplace(path);
  const std::wstring native = NativePath(path);
  HANDLE handle = INVALID_HANDLE_VALUE;
  const auto open = [&] {
    handle = ::CreateFileW(
        native.c_str(), isReading ? GENERIC_READ : GENERIC_WRITE, kEveryoneMay,
        owner ? owner->Attributes() : nullptr, disposition,
        opening == Opening::ToReadNoLink ? FILE_FLAG_OPEN_REPARSE_POINT : FILE_ATTRIBUTE_NORMAL,
        nullptr);
    return handle != INVALID_HANDLE_VALUE;
  };
  DonePatiently(open);
  return reinterpret_cast<std::intptr_t>(handle);
}

// Which file it is, wherever it is; none if there is no such file.
std::optional<BY_HANDLE_FILE_INFORMATION> Identity(HANDLE handle) {
  BY_HANDLE_FILE_INFORMATION found;
  if (!::GetFileInformationByHandle(handle, &found)) return std::nullopt;
  return found;
}

bool IsOrdinary(HANDLE handle, Opening opening) {
  if (::GetFileType(handle) != FILE_TYPE_DISK) return false;
  const auto found = Identity(handle);
  DWORD kinds = FILE_ATTRIBUTE_DIRECTORY;
  if (opening == Opening::ToReadNoLink) kinds |= FILE_ATTRIBUTE_REPARSE_POINT;
  return found && (found->dwFileAttributes & kinds) == 0;
}

}  // namespace

OpenFile::OpenFile(const std::string& path, Opening opening, Readers readers)
    : path_(path), handle_(Open(path, opening, readers)) {
  if (handle_ == -1) ThrowLastError(path);
  if (IsOrdinary(HandleOf(handle_), opening)) return;
  ::CloseHandle(HandleOf(handle_));
  throw RunTimeFailure(FailureNumber::PathFileAccessError);
}

OpenFile::~OpenFile() {
  if (handle_ != -1) ::CloseHandle(HandleOf(handle_));
}

std::string OpenFile::ReadAll() const {
  return ReadStart(std::numeric_limits<std::size_t>::max());
}

std::string OpenFile::ReadStart(std::size_t limit) const {
  std::string bytes;
  char buffer[64 << 10];
  while (bytes.size() < limit) {
    const auto wanted = static_cast<DWORD>(std::min(sizeof buffer, limit - bytes.size()));
    DWORD count = 0;
    if (!::ReadFile(HandleOf(handle_), buffer, wanted, &count, nullptr)) ThrowLastError(path_);
    if (count == 0) break;
    bytes.append(buffer, count);
  }
  return bytes;
}

// Always at the end of the file, whoever else writes there.
void OpenFile::Write(std::string_view bytes) {
  constexpr std::size_t kMostAtOnce = 16 << 20;
  while (!bytes.empty()) {
    OVERLAPPED end{};
    end.Offset = end.OffsetHigh = 0xFFFFFFFF;
    DWORD count = 0;
    if (!::WriteFile(HandleOf(handle_), bytes.data(),
                     static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce)), &count, &end)) {
      ThrowLastError(path_);
    }
    bytes.remove_prefix(count);
  }
}

void OpenFile::Append(std::string_view bytes) {
  LARGE_INTEGER before;
  if (!::GetFileSizeEx(HandleOf(handle_), &before)) ThrowLastError(path_);
  try {
    Write(bytes);
  } catch (const RunTimeFailure&) {
    // If this fails too, the first failure is still the one to report.
    FILE_END_OF_FILE_INFO end;
    end.EndOfFile = before;
    ::SetFileInformationByHandle(HandleOf(handle_), FileEndOfFileInfo, &end, sizeof end);
    throw;
  }
}

void OpenFile::TakePermissionsOf(const std::string& path) {
  CopyPermissions(path, path_);
}

void OpenFile::LetOnlyOwnerIn() {
  LetOnlyOwnerOpen(path_);
}

bool OpenFile::TryToLock() {
  OVERLAPPED place{};
  place.OffsetHigh = kLockedHigh;
  if (!::LockFileEx(HandleOf(handle_), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                    &place)) {
    return false;
  }
  const Handle named(::CreateFileW(NativePath(path_).c_str(), FILE_READ_ATTRIBUTES, kEveryoneMay,
                                   nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  const auto own = Identity(HandleOf(handle_));
  const auto other = named ? Identity(named.Get()) : std::nullopt;
  return own && other && own->dwVolumeSerialNumber == other->dwVolumeSerialNumber &&
         own->nFileIndexHigh == other->nFileIndexHigh && own->nFileIndexLow == other->nFileIndexLow;
}

void OpenFile::Flush() {
  if (!::FlushFileBuffers(HandleOf(handle_))) ThrowLastError(path_);
}

void OpenFile::Close() {
  if (!::CloseHandle(HandleOf(std::exchange(handle_, -1)))) ThrowLastError(path_);
}

}  // namespace verlume::qt
