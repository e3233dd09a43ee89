// What a fault that ends the program leaves behind; each system has a file of its own.
#pragma once

#include <string>

namespace verlume::qt {

inline constexpr char kCrashReport[] = "verlume-crash.txt";

// Whether a box tells the user that the program ends, and where the report is.
enum class CrashNotice { Box, None };

// From now on a fault that ends the program writes a report into the folder, in the place of the
// one before: the versions, the time, the kind of the fault and the call stack, but nothing of what
// the program had in its memory. Only the user can read it. Calling this again changes the folder.
// Does nothing where the system itself keeps what a fault leaves (POSIX: core dumps).
void ReportCrashes(const std::string& folder, CrashNotice notice = CrashNotice::Box);

// The language of the box from now on, English at first. From any thread.
void SetCrashNoticeLanguage(bool isGreek);

}  // namespace verlume::qt
