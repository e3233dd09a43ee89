#include "platform_qt/os/crash_report.h"

namespace verlume::qt {

// The system keeps core dumps, for those who want them.
void ReportCrashes(const std::string&, CrashNotice) {}

void SetCrashNoticeLanguage(bool) {}

}  // namespace verlume::qt
