#include "platform_qt/system/file_replacement.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/run_time_failure.h"

namespace verlume::qt {
namespace {

constexpr int kNewFile = O_WRONLY | O_CREAT | O_EXCL;

// False while another copy of the program uses this name.
bool RemoveRemnant(const std::string& path) {
  if (struct stat found; ::lstat(path.c_str(), &found) != 0) return true;
  try {
    OpenFile remnant(path, O_RDONLY | O_NOFOLLOW);
    return remnant.TryToLock() && ::unlink(path.c_str()) == 0;
  } catch (const RunTimeFailure&) {
    return false;
  }
}

// False if the new name is taken.
bool RenameToFree(const std::string& from, const std::string& to) {
  const auto rename = [&](unsigned flags) {
    return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0;
  };
  if (rename(RENAME_NOREPLACE)) return true;
  if (errno == EEXIST) return false;
  // Some file systems cannot tell.
  const bool cannotTell = errno == EINVAL || errno == ENOSYS;
  if (!cannotTell || !rename(0)) ThrowErrno(to);
  return true;
}

// Makes the new name itself survive a crash, if the system can.
void FlushFolder(const std::string& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace

FileReplacement::FileReplacement(const std::string& folder, mode_t mode)
    : path_(folder + "/.verlume.new") {
  if (OpenUnderCommonName(mode)) return;
  path_ = folder + "/.verlume-" + std::to_string(::getpid()) + ".new";
  ::unlink(path_.c_str());
  file_.emplace(path_, kNewFile, mode);
}

FileReplacement::~FileReplacement() {
  if (file_ && !hasTakenPlace_) ::unlink(path_.c_str());
}

// A failure that another copy did not cause happens again with the other name, and is thrown there.
bool FileReplacement::OpenUnderCommonName(mode_t mode) try {
  if (!RemoveRemnant(path_)) return false;
  file_.emplace(path_, kNewFile, mode);
  // Another copy may have taken the file for a leftover before it was locked.
  if (file_->TryToLock()) return true;
  file_.reset();
  return false;
} catch (const RunTimeFailure&) {
  return false;
}

void FileReplacement::TakePlaceOf(const std::string& path) {
  file_->Flush();
  // The file stays open, and so locked, until it has its final name.
  if (::rename(path_.c_str(), path.c_str()) != 0) ThrowErrno(path);
  Finish(path);
}

bool FileReplacement::TakeFreePlace(const std::string& path) {
  file_->Flush();
  if (!RenameToFree(path_, path)) return false;
  Finish(path);
  return true;
}

void FileReplacement::Finish(const std::string& path) {
  hasTakenPlace_ = true;
  file_.reset();
  FlushFolder(FolderOf(path));
}

}  // namespace verlume::qt
