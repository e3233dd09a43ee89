#include "platform_qt/os/errors_windows.h"

#include <windows.h>

#include "platform/run_time_failure.h"
#include "platform_qt/os/files.h"

namespace verlume::qt {
namespace {

// MinGW's headers do not have these.
constexpr DWORD kVirusInfected = 225;
constexpr DWORD kNoSuchDevice = 433;
constexpr DWORD kDiskQuotaExceeded = 1295;

FailureNumber FailureOf(DWORD error, const std::string& path) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
      return FailureNumber::FileNotFound;
    case ERROR_PATH_NOT_FOUND:
    // A drive that has been taken out, or that was never there.
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_WRONG_DISK:
    case ERROR_DEV_NOT_EXIST:
    case kNoSuchDevice:
    case ERROR_UNRECOGNIZED_VOLUME:
    case ERROR_FILE_INVALID:
    case ERROR_NO_MEDIA_IN_DRIVE:
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_DEVICE_REMOVED:
    // A computer of the network that does not answer, or answers no longer.
    case ERROR_REM_NOT_LIST:
    case ERROR_BAD_NETPATH:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_NETNAME_DELETED:
    case ERROR_BAD_NET_NAME:
    case ERROR_SEM_TIMEOUT:
    case ERROR_NO_NET_OR_BAD_PATH:
    case ERROR_CONNECTION_UNAVAIL:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_HOST_UNREACHABLE:
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
    case ERROR_NETWORK_ACCESS_DENIED:
    case kVirusInfected:
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
