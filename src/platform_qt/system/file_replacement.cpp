#include "platform_qt/system/file_replacement.h"

#include "platform/run_time_failure.h"
#include "platform_qt/os/files.h"

namespace verlume::qt {
namespace {

// False while another copy of the program uses this name.
bool RemoveRemnant(const std::string& path) {
  if (!IsTaken(path)) return true;
  try {
    OpenFile remnant(path, Opening::ToReadNoLink);
    return remnant.TryToLock() && TryToRemove(path);
  } catch (const RunTimeFailure&) {
    return false;
  }
}

}  // namespace

FileReplacement::FileReplacement(const std::string& folder, Readers readers)
    : path_(folder + "/.verlume.new") {
  if (OpenUnderCommonName(readers)) return;
  path_ = folder + "/.verlume-" + ProcessNumber() + ".new";
  TryToRemove(path_);
  file_.emplace(path_, Opening::ToMake, readers);
}

FileReplacement::~FileReplacement() {
  if (file_ && !hasTakenPlace_) TryToRemove(path_);
}

// A failure that another copy did not cause happens again with the other name, and is thrown there.
bool FileReplacement::OpenUnderCommonName(Readers readers) try {
  if (!RemoveRemnant(path_)) return false;
  file_.emplace(path_, Opening::ToMake, readers);
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
  MoveInto(path_, path);
  Finish();
}

bool FileReplacement::TakeFreePlace(const std::string& path) {
  file_->Flush();
  if (!MoveIntoFree(path_, path)) return false;
  Finish();
  return true;
}

void FileReplacement::Finish() {
  hasTakenPlace_ = true;
  file_.reset();
}

}  // namespace verlume::qt
