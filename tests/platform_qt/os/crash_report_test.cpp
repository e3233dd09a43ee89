#include "platform_qt/os/crash_report.h"

#include <gtest/gtest.h>

#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

TEST(CrashReportTest, WithoutAFaultNothingIsWritten) {
  const TemporaryFolder folder;
  ReportCrashes(folder.Path(), CrashNotice::None);
  ReportCrashes(folder.Path() + "/\xff", CrashNotice::None);  // no folder: nothing happens
  SetCrashNoticeLanguage(true);
  SetCrashNoticeLanguage(false);
  EXPECT_TRUE(FilesIn(folder.Path()).empty());
}

}  // namespace
}  // namespace verlume::qt
