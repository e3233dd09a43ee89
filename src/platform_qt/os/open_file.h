// A file that is open during the lifetime of an object, each system in a file of its own. Every
// operation throws a RunTimeFailure.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace verlume::qt {

enum class Opening {
  ToRead,
  ToReadNoLink,  // as ToRead, but a link at the path is not followed
  ToAppend,      // makes the file if there is none
  ToMake,        // fails if there is anything at the path
};

class OpenFile {
 public:
  // Only ordinary files are opened; other processes may read, write and delete them meanwhile.
  // `readers` is for a file that is made.
  OpenFile(const std::string& path, Opening opening, Readers readers = Readers::Usual);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  std::string ReadAll() const;
  // Reads at most `limit` bytes.
  std::string ReadStart(std::size_t limit) const;
  void Write(std::string_view bytes);
  // Writes everything or, on failure, restores the file's length.
  void Append(std::string_view bytes);
  // Gives the file the permissions of the one at a path.
  void TakePermissionsOf(const std::string& path);
  // Takes away everybody else's permissions, if there are any.
  void LetOnlyOwnerIn();
  // Locks the file against other copies of the program until it is closed. False if one of them
  // holds the lock or has removed the file from its path.
  bool TryToLock();
  // Returns when the bytes are on the disk.
  void Flush();
  // Closes the file, and throws errors that the system reports only then.
  void Close();

 private:
  std::string path_;
  std::intptr_t handle_;  // the system's own, or -1
};

}  // namespace verlume::qt
