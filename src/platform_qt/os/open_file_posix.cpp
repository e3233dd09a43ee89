#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

#include "platform/run_time_failure.h"
#include "platform_qt/os/errors_posix.h"
#include "platform_qt/os/open_file.h"

namespace verlume::qt {
namespace {

constexpr mode_t kUsual = 0666;  // less what the user's umask takes away
constexpr mode_t kOwnerOnly = 0600;
constexpr mode_t kPermissionBits = 07777;

int FlagsOf(Opening opening) {
  switch (opening) {
    case Opening::ToRead:
      return O_RDONLY;
    case Opening::ToReadNoLink:
      return O_RDONLY | O_NOFOLLOW;
    case Opening::ToAppend:
      return O_WRONLY | O_CREAT | O_APPEND;
    case Opening::ToMake:
      return O_WRONLY | O_CREAT | O_EXCL;
  }
  return O_RDONLY;
}

int Descriptor(std::intptr_t handle) {
  return static_cast<int>(handle);
}

}  // namespace

// With O_NONBLOCK, opening a pipe does not block the program; ordinary files ignore it.
OpenFile::OpenFile(const std::string& path, Opening opening, Readers readers)
    : path_(path),
      handle_(::open(path.c_str(), FlagsOf(opening) | O_CLOEXEC | O_NOCTTY | O_NONBLOCK,
                     readers == Readers::OwnerOnly ? kOwnerOnly : kUsual)) {
  if (handle_ < 0) ThrowErrno(path);
  struct stat found;
  if (::fstat(Descriptor(handle_), &found) == 0 && S_ISREG(found.st_mode)) return;
  ::close(Descriptor(handle_));
  throw RunTimeFailure(FailureNumber::PathFileAccessError);
}

OpenFile::~OpenFile() {
  if (handle_ >= 0) ::close(Descriptor(handle_));
}

std::string OpenFile::ReadAll() const {
  return ReadStart(std::numeric_limits<std::size_t>::max());
}

std::string OpenFile::ReadStart(std::size_t limit) const {
  std::string bytes;
  char buffer[64 << 10];
  while (bytes.size() < limit) {
    const std::size_t wanted = std::min(sizeof buffer, limit - bytes.size());
    const ssize_t count = ::read(Descriptor(handle_), buffer, wanted);
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
    const ssize_t count = ::write(Descriptor(handle_), bytes.data(), bytes.size());
    if (count >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      ThrowErrno(path_);
    }
  }
}

void OpenFile::Append(std::string_view bytes) {
  struct stat before;
  if (::fstat(Descriptor(handle_), &before) != 0) ThrowErrno(path_);
  try {
    Write(bytes);
  } catch (const RunTimeFailure&) {
    // If this fails too, the first failure is still the one to report.
    [[maybe_unused]] const int result = ::ftruncate(Descriptor(handle_), before.st_size);
    throw;
  }
}

void OpenFile::TakePermissionsOf(const std::string& path) {
  struct stat found;
  if (::stat(path.c_str(), &found) != 0) ThrowErrno(path);
  if (::fchmod(Descriptor(handle_), found.st_mode & kPermissionBits) != 0) ThrowErrno(path_);
}

void OpenFile::LetOnlyOwnerIn() {
  constexpr mode_t kOthers = S_IRWXG | S_IRWXO;
  struct stat found;
  if (::fstat(Descriptor(handle_), &found) != 0) ThrowErrno(path_);
  if ((found.st_mode & kOthers) == 0) return;
  if (::fchmod(Descriptor(handle_), kOwnerOnly) != 0) ThrowErrno(path_);
}

bool OpenFile::TryToLock() {
  if (::flock(Descriptor(handle_), LOCK_EX | LOCK_NB) != 0) return false;
  struct stat open;
  struct stat named;
  return ::fstat(Descriptor(handle_), &open) == 0 && ::lstat(path_.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

void OpenFile::Flush() {
  if (::fsync(Descriptor(handle_)) != 0) ThrowErrno(path_);
}

void OpenFile::Close() {
  if (::close(Descriptor(std::exchange(handle_, -1))) != 0) ThrowErrno(path_);
}

}  // namespace verlume::qt
