#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "platform/run_time_failure.h"
#include "platform_qt/os/errors_posix.h"
#include "platform_qt/os/files.h"

namespace verlume::qt {
namespace {

FileKind KindOf(mode_t mode) {
  if (S_ISREG(mode)) return FileKind::File;
  return S_ISDIR(mode) ? FileKind::Folder : FileKind::Other;
}

// Makes a new name in the folder survive a crash, if the system can.
void FlushFolder(const std::string& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
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

}  // namespace

FileKind KindOf(const std::string& path) {
  struct stat found;
  return ::stat(path.c_str(), &found) == 0 ? KindOf(found.st_mode) : FileKind::Nothing;
}

bool IsTaken(const std::string& path) {
  struct stat found;
  return ::lstat(path.c_str(), &found) == 0 || errno != ENOENT;
}

bool IsNameOfDevice(std::u16string_view) noexcept {
  return false;
}

bool CanBeFileName(std::u16string_view name) noexcept {
  if (name.empty() || name == u"." || name == u"..") return false;
  return name.find(u'/') == name.npos && name.find(u'\0') == name.npos;
}

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::uint64_t FileSize(const std::string& path) {
  struct stat found;
  if (::stat(path.c_str(), &found) != 0) ThrowErrno(path);
  if (!S_ISREG(found.st_mode)) throw RunTimeFailure(FailureNumber::PathFileAccessError);
  return static_cast<std::uint64_t>(found.st_size);
}

void CheckWritable(const std::string& path) {
  if (!CanWriteTo(path)) ThrowErrno(path);
}

std::string EndOfLinks(const std::string& path) {
  constexpr int kMostLinks = 40;
  std::string end = path;
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::read_symlink(end, error);
    if (error) return end;
    end = std::filesystem::path(FolderOf(end)) / target;
  }
  throw RunTimeFailure(FailureNumber::PathFileAccessError);
}

std::vector<std::string> FilesIn(const std::string& folder) {
  std::error_code error;
  std::vector<std::string> names;
  auto entry = std::filesystem::directory_iterator(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_regular_file(ignored)) names.push_back(entry->path().filename().string());
  }
  if (!error) return names;
  errno = error.value();
  ThrowErrno(folder);
}

void RemoveFile(const std::string& path) {
  if (::unlink(path.c_str()) != 0) ThrowErrno(path);
}

void MoveInto(const std::string& from, const std::string& to) {
  if (::rename(from.c_str(), to.c_str()) != 0) ThrowErrno(to);
  FlushFolder(FolderOf(to));
}

bool MoveIntoFree(const std::string& from, const std::string& to) {
  if (!RenameToFree(from, to)) return false;
  FlushFolder(FolderOf(to));
  return true;
}

bool CanMakeFilesIn(const std::string& folder) noexcept {
  return KindOf(folder) == FileKind::Folder &&
         ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool CanWriteTo(const std::string& path) noexcept {
  return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

bool TryToRemove(const std::string& path) noexcept {
  return ::unlink(path.c_str()) == 0;
}

bool TryToRename(const std::string& from, const std::string& to) noexcept {
  return ::rename(from.c_str(), to.c_str()) == 0;
}

std::string ProcessNumber() {
  return std::to_string(::getpid());
}

}  // namespace verlume::qt
