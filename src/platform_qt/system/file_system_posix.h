// Open files of a POSIX system, and its failures as run-time failures.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace verlume::qt {

// Throws the RunTimeFailure of errno, met while using `path`.
[[noreturn]] void ThrowErrno(const std::string& path);

// What is found at a path, links followed. False when there is nothing.
bool Find(const std::string& path, struct stat& found);

// The folder that a path stands in.
std::string FolderOf(const std::string& path);

// A file that is open as long as this lives. Every operation throws a RunTimeFailure.
class OpenFile {
 public:
  // `flags` are those of open(2). Only ordinary files are opened.
  OpenFile(const std::string& path, int flags);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  std::string ReadAll() const;
  void Write(std::string_view bytes);
  // Writes all or, on failure, leaves the file as long as it was.
  void Append(std::string_view bytes);
  void SetPermissions(mode_t mode);
  // Locks the file against other copies of the program until it is closed. False when one of them
  // has it, or has taken it away from its path.
  bool TryToLock();
  // Until the bytes are on the disk.
  void Flush();
  // Reports what the system finds wrong only now.
  void Close();

 private:
  std::string path_;
  int descriptor_;
};

}  // namespace verlume::qt
