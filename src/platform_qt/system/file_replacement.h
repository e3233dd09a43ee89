// The new content of a file, on its way to take the old one's place.
#pragma once

#include <optional>
#include <string>

#include "platform_qt/system/file_system_posix.h"

namespace verlume::qt {

// A new file in the folder of the old one, under a name that no other copy of the program uses at
// this moment. It is gone with this object, unless it has taken a place. Every operation throws a
// RunTimeFailure.
//
// A copy that is killed leaves its file behind. So there is one name per folder, and whoever works
// under it holds a lock: a file of that name without a lock is such a remnant and is removed, and
// one with a lock makes a copy take a name of its own.
class FileReplacement {
 public:
  explicit FileReplacement(const std::string& folder);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  OpenFile& File() { return *file_; }
  // The content is on the disk before the name is: a crash leaves the old content or the new. The
  // file cannot be written to any more.
  void TakePlaceOf(const std::string& path);

 private:
  bool OpenUnderCommonName();

  std::string path_;
  std::optional<OpenFile> file_;
  bool hasTakenPlace_ = false;
};

}  // namespace verlume::qt
