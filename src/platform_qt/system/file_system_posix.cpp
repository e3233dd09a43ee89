#include "platform_qt/system/file_system_posix.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

#include "platform/run_time_failure.h"

namespace verlume::qt {
namespace {

FailureNumber FailureOf(int error, const std::string& path) {
  struct stat folder;
  switch (error) {
    case ENOENT:
      return Find(FolderOf(path), folder) ? FailureNumber::FileNotFound
                                          : FailureNumber::PathNotFound;
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

bool Find(const std::string& path, struct stat& found) {
  return ::stat(path.c_str(), &found) == 0;
}

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// With O_NONBLOCK, opening a pipe does not block the program; ordinary files ignore it.
OpenFile::OpenFile(const std::string& path, int flags, mode_t mode)
    : path_(path),
      descriptor_(::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode)) {
  if (descriptor_ < 0) ThrowErrno(path);
  struct stat found;
  if (::fstat(descriptor_, &found) == 0 && S_ISREG(found.st_mode)) return;
  ::close(descriptor_);
  throw RunTimeFailure(FailureNumber::PathFileAccessError);
}

OpenFile::~OpenFile() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::string OpenFile::ReadAll() const {
  return ReadStart(std::numeric_limits<std::size_t>::max());
}

std::string OpenFile::ReadStart(std::size_t limit) const {
  std::string bytes;
  char buffer[64 << 10];
  while (bytes.size() < limit) {
    const std::size_t wanted = std::min(sizeof buffer, limit - bytes.size());
    const ssize_t count = ::read(descriptor_, buffer, wanted);
    if (count == 0) break;
    if (count > 0) {
      bytes.append(buffer, static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      ThrowErrno(path_);
    }
  }
  return bytes;
}

void OpenFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
    if (count >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      ThrowErrno(path_);
    }
  }
}

void OpenFile::Append(std::string_view bytes) {
  struct stat before;
  if (::fstat(descriptor_, &before) != 0) ThrowErrno(path_);
  try {
    Write(bytes);
  } catch (const RunTimeFailure&) {
    // If this fails too, the first failure is still the one to report.
    [[maybe_unused]] const int result = ::ftruncate(descriptor_, before.st_size);
    throw;
  }
}

void OpenFile::SetPermissions(mode_t mode) {
  if (::fchmod(descriptor_, mode) != 0) ThrowErrno(path_);
}

bool OpenFile::TryToLock() {
  if (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0) return false;
  struct stat open;
  struct stat named;
  return ::fstat(descriptor_, &open) == 0 && ::lstat(path_.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

void OpenFile::Flush() {
  if (::fsync(descriptor_) != 0) ThrowErrno(path_);
}

void OpenFile::Close() {
  if (::close(std::exchange(descriptor_, -1)) != 0) ThrowErrno(path_);
}

}  // namespace verlume::qt
