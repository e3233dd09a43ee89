#include "platform_qt/os/errors_posix.h"

#include <cerrno>

#include "platform/run_time_failure.h"
#include "platform_qt/os/files.h"

namespace verlume::qt {
namespace {

FailureNumber FailureOf(int error, const std::string& path) {
  switch (error) {
    case ENOENT:
      return KindOf(FolderOf(path)) == FileKind::Nothing ? FailureNumber::PathNotFound
                                                         : FailureNumber::FileNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FailureNumber::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return FailureNumber::PermissionDenied;
    default:
      return FailureNumber::PathFileAccessError;
  }
}

}  // namespace

void ThrowErrno(const std::string& path) {
  throw RunTimeFailure(FailureOf(errno, path));
}

}  // namespace verlume::qt
