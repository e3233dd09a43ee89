// Open files of a POSIX system, and its errors as run-time failures.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace verlume::qt {

// Throws the RunTimeFailure for errno after an operation on `path`.
[[noreturn]] void ThrowErrno(const std::string& path);

// Reads the status of what is at a path, following links. False if there is nothing.
bool Find(const std::string& path, struct stat& found);

// The folder that contains the path.
std::string FolderOf(const std::string& path);

// Permissions of a new file.
inline constexpr mode_t kUsual = 0666;  // less what the user's umask takes away
inline constexpr mode_t kOwnerOnly = 0600;

// A file that is open during the lifetime of this object. Every operation throws a RunTimeFailure.
class OpenFile {
 public:
  // `flags` are those of open(2). Only ordinary files are opened. `mode` is for a file that is
  // made.
  OpenFile(const std::string& path, int flags, mode_t mode = kUsual);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  std::string ReadAll() const;
  // Reads at most `limit` bytes.
  std::string ReadStart(std::size_t limit) const;
  void Write(std::string_view bytes);
  // Writes everything or, on failure, restores the file's length.
  void Append(std::string_view bytes);
  void SetPermissions(mode_t mode);
  // Locks the file against other copies of the program until it is closed. False if one of them
  // holds the lock or has removed the file from its path.
  bool TryToLock();
  // Returns when the bytes are on the disk.
  void Flush();
  // Closes the file, and throws errors that the system reports only then.
  void Close();

 private:
  std::string path_;
  int descriptor_;
};

}  // namespace verlume::qt
