// A writing program in a process of its own, which can be killed at any moment.
#pragma once

#include <sys/types.h>

#include <QString>
#include <chrono>
#include <string>
#include <vector>

#include "platform_qt/system/writing_program.h"

namespace verlume::qt {

class KilledWriter {
 public:
  // Starts the program in `folder`; its first line is number `first`. With stepping, it stops
  // before and after each system call.
  enum class Pace { Free, StepByStep };
  KilledWriter(const QString& folder, int first, Pace pace);
  ~KilledWriter();
  KilledWriter(const KilledWriter&) = delete;
  KilledWriter& operator=(const KilledWriter&) = delete;

  // Lets it run until it has sent this many reports, and then for this long; then kills it and
  // returns all its reports. Without a report to wait for, it may be killed at any point of its
  // start.
  std::vector<Report> KillAfter(int reports, std::chrono::microseconds more);
  // The same after this many steps.
  std::vector<Report> KillAfterSteps(int steps);

  // Continues to the next stop. False if the system does not allow tracing.
  bool Step();
  int ReportsSoFar();

 private:
  // Waits for this many reports, or until the time limit.
  void ReadUntil(std::chrono::steady_clock::time_point end, std::size_t reports);
  bool ReadSome();
  bool WaitForStop();
  std::vector<Report> Kill();
  // False if it has already ended.
  bool End();

  pid_t process_ = 0;  // 0 when it has ended
  int reports_ = -1;
  bool isWatched_ = false;
  std::string read_;
};

}  // namespace verlume::qt
