#include "platform_qt/os/errors_windows.h"

#include <windows.h>

#include "platform/run_time_failure.h"
#include "platform_qt/os/files.h"

namespace verlume::qt {
namespace {

// MinGW's headers do not have it.
constexpr DWORD kDiskQuotaExceeded = 1295;

FailureNumber FailureOf(DWORD error, const std::string& path) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
      return FailureNumber::FileNotFound;
    // Of a drive that has been taken out, too.
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DEV_NOT_EXIST:
      return FailureNumber::PathNotFound;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
      return FailureNumber::DiskFull;
    // Windows gives this error for a folder that is to be opened or replaced as well.
    case ERROR_ACCESS_DENIED:
      return KindOf(path) == FileKind::Folder ? FailureNumber::PathFileAccessError
                                              : FailureNumber::PermissionDenied;
    // Another program holds the file open.
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_DELETE_PENDING:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_WRITE_PROTECT:
      return FailureNumber::PermissionDenied;
    default:
      return FailureNumber::PathFileAccessError;
  }
}

}  // namespace

void ThrowLastError(const std::string& path) {
  ThrowError(::GetLastError(), path);
}

void ThrowError(unsigned long error, const std::string& path) {
  throw RunTimeFailure(FailureOf(error, path));
}

}  // namespace verlume::qt
