// A writing program in a process of its own that may be killed at any moment.
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
  // Starts the program in `folder`; its first line is `first`. One that goes step by step stops
  // before and after each system call.
  enum class Pace { Free, StepByStep };
  KilledWriter(const QString& folder, int first, Pace pace);
  ~KilledWriter();
  KilledWriter(const KilledWriter&) = delete;
  KilledWriter& operator=(const KilledWriter&) = delete;

  // Lets it live until it has sent so many reports, and for this long; kills it and gives all that
  // it reported. Without a report to wait for it may be at any point of its start by then.
  std::vector<Report> KillAfter(int reports, std::chrono::microseconds more);
  // The same after so many steps.
  std::vector<Report> KillAfterSteps(int steps);

  // Goes on to the next stop. False where the system lets nobody watch another process.
  bool Step();
  int ReportsSoFar();

 private:
  // Until there are so many reports, or the time is up.
  void ReadUntil(std::chrono::steady_clock::time_point end, std::size_t reports);
  bool ReadSome();
  bool WaitForStop();
  std::vector<Report> Kill();
  // False when it has ended before.
  bool End();

  pid_t process_ = 0;  // 0 once it has ended
  int reports_ = -1;
  bool isWatched_ = false;
  std::string read_;
};

}  // namespace verlume::qt
