// A disk that fails as real ones do, and that is well again afterwards.
#pragma once

#include <sys/resource.h>

#include <QString>
#include <QTemporaryDir>
#include <optional>
#include <string>

#include "platform/run_time_failure.h"
#include "platform_qt/system/unprivileged.h"

namespace verlume::qt {

enum class DiskFault {
  FolderRemoved,
  FileInItsPlace,
  NoPermission,
  DiskFull,  // a small disk of the test's own, where the system lets it have one; else as below
  NoMoreGrowing,  // no file may become longer: as a quota that is used up
};

const char* NameOf(DiskFault fault);
// The number with which a write fails.
FailureNumber NumberOf(DiskFault fault);

class FailingDisk {
 public:
  explicit FailingDisk(DiskFault fault);
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  QString Path() const { return root_.path() + "/disk"; }
  // From now on nothing can be written into this folder of the disk ("" is the disk itself).
  void Break(const QString& folder);
  // As it was before.
  void Mend();

 private:
  QString FolderPath() const { return folder_.isEmpty() ? Path() : Path() + "/" + folder_; }
  void SetWritable(bool writable) const;
  void Fill() const;
  void LimitSizes(bool limited);

  DiskFault fault_;
  QTemporaryDir root_;
  bool isOwnDisk_ = false;
  bool isBroken_ = false;
  QString folder_;
  rlimit limit_{};
  std::optional<Unprivileged> user_;
};

}  // namespace verlume::qt
