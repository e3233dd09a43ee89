#include "platform_qt/system/failing_disk.h"

#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <iostream>

#include "platform_qt/system/small_disk.h"

namespace verlume::qt {
namespace {

struct FaultDesign {
  DiskFault fault;
  const char* name;
  FailureNumber number;
};

constexpr FaultDesign kFaults[] = {
    {DiskFault::FolderRemoved, "FolderRemoved", FailureNumber::PathNotFound},
    {DiskFault::FileInItsPlace, "FileInItsPlace", FailureNumber::PathFileAccessError},
    {DiskFault::NoPermission, "NoPermission", FailureNumber::PermissionDenied},
    {DiskFault::DiskFull, "DiskFull", FailureNumber::DiskFull},
    {DiskFault::NoMoreGrowing, "NoMoreGrowing", FailureNumber::DiskFull}};

const FaultDesign& DesignOf(DiskFault fault) {
  return kFaults[static_cast<int>(fault)];
}

constexpr auto kFiller = "/filler";

}  // namespace

const char* NameOf(DiskFault fault) {
  return DesignOf(fault).name;
}

FailureNumber NumberOf(DiskFault fault) {
  return DesignOf(fault).number;
}

FailingDisk::FailingDisk(DiskFault fault) : fault_(fault) {
  QDir().mkdir(Path());
  ::chmod(root_.path().toUtf8().constData(), 0755);
  if (fault != DiskFault::DiskFull) return;
  isOwnDisk_ = MountSmallDisk(Path().toStdString());
  std::cout << (isOwnDisk_ ? "A small disk of the test's own fills up.\n"
                           : std::string("No disk of the test's own (") + std::strerror(errno) +
                                 "): a limit on the size of files takes its place.\n");
}

FailingDisk::~FailingDisk() {
  if (isBroken_) Mend();
  if (isOwnDisk_) UnmountSmallDisk(Path().toStdString());
}

void FailingDisk::Break(const QString& folder) {
  folder_ = folder;
  isBroken_ = true;
  switch (fault_) {
    case DiskFault::FolderRemoved:
    case DiskFault::FileInItsPlace:
      QDir().rename(FolderPath(), root_.filePath("away"));
      if (fault_ == DiskFault::FileInItsPlace) QFile(FolderPath()).open(QIODevice::WriteOnly);
      return;
    case DiskFault::NoPermission:
      SetWritable(false);
      user_.emplace();
      return;
    default:
      return isOwnDisk_ ? Fill() : LimitSizes(true);
  }
}

void FailingDisk::Mend() {
  isBroken_ = false;
  switch (fault_) {
    case DiskFault::FolderRemoved:
    case DiskFault::FileInItsPlace:
      QFile::remove(FolderPath());
      QDir().rename(root_.filePath("away"), FolderPath());
      return;
    case DiskFault::NoPermission:
      user_.reset();
      return SetWritable(true);
    default:
      if (!isOwnDisk_) return LimitSizes(false);
      QFile::remove(Path() + kFiller);
  }
}

void FailingDisk::SetWritable(bool writable) const {
  QDirIterator files(FolderPath(), QDir::Files);
  while (files.hasNext()) {
    ::chmod(files.next().toUtf8().constData(), writable ? 0644 : 0444);
  }
  ::chmod(FolderPath().toUtf8().constData(), writable ? 0755 : 0555);
}

void FailingDisk::Fill() const {
  QFile filler(Path() + kFiller);
  if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return;
  const QByteArray page(4096, 'f');
  while (filler.write(page) == page.size()) {
  }
}

void FailingDisk::LimitSizes(bool limited) {
  // A write beyond the limit raises this signal, unless it is ignored.
  std::signal(SIGXFSZ, SIG_IGN);
  if (limited) ::getrlimit(RLIMIT_FSIZE, &limit_);
  const rlimit none = {0, limit_.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, limited ? &none : &limit_);
}

}  // namespace verlume::qt
