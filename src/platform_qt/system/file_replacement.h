// Replaces a file by a new one.
#pragma once

#include <optional>
#include <string>

#include "platform_qt/os/open_file.h"

namespace verlume::qt {

// A new file in the folder of the old one, under a name that no other copy of the program is using.
// It is deleted with this object, unless it has replaced the old file. Every operation throws a
// RunTimeFailure.
//
// A copy that is killed leaves its file behind. Therefore there is one name per folder, and whoever
// uses it holds a lock: a file of that name without a lock is a leftover and is removed; if it is
// locked, this copy uses a name of its own.
class FileReplacement {
 public:
  explicit FileReplacement(const std::string& folder, Readers readers = Readers::Usual);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  OpenFile& File() { return *file_; }
  // Writes the content to the disk before renaming, so that a crash leaves the old content or the
  // new. The file cannot be written to afterwards.
  void TakePlaceOf(const std::string& path);
  // The same where there is no old file. False if there is one by now: it stays as it is.
  [[nodiscard]] bool TakeFreePlace(const std::string& path);

 private:
  void Finish();
  bool OpenUnderCommonName(Readers readers);

  std::string path_;
  std::optional<OpenFile> file_;
  bool hasTakenPlace_ = false;
};

}  // namespace verlume::qt
