// A disk that fails like a real one, and can be repaired.
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
  DiskFull,       // a small disk of the test's own if the system allows one; else as NoMoreGrowing
  NoMoreGrowing,  // no file may grow, as with an exhausted quota
};

const char* NameOf(DiskFault fault);
// The failure number of a write.
FailureNumber NumberOf(DiskFault fault);

class FailingDisk {
 public:
  explicit FailingDisk(DiskFault fault);
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  QString Path() const { return root_.path() + "/disk"; }
  // Makes this folder of the disk ("" is the disk itself) unwritable.
  void Break(const QString& folder);
  // Makes everything writable again.
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
