#include "platform_qt/system/killed_writer.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace verlume::qt {
namespace {

using Clock = std::chrono::steady_clock;

// Stops until the parent continues it. Exits if tracing is not allowed.
void BeWatched() {
  if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(1);
  ::raise(SIGSTOP);
}

}  // namespace

KilledWriter::KilledWriter(const QString& folder, int first, Pace pace) {
  int ends[2];
  if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
  process_ = ::fork();
  if (process_ < 0) throw std::runtime_error("no process");
  if (process_ == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // does not outlive an interrupted test
    ::close(ends[0]);
    if (pace == Pace::StepByStep) BeWatched();
    WriteFrom(first, folder, ends[1]);
  }
  ::close(ends[1]);
  reports_ = ends[0];
}

KilledWriter::~KilledWriter() {
  End();
  ::close(reports_);
}

bool KilledWriter::End() {
  // With any other number, more than this process would be killed.
  if (process_ <= 0) return false;
  ::kill(process_, SIGKILL);
  int status = 0;
  ::waitpid(std::exchange(process_, 0), &status, 0);
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

bool KilledWriter::ReadSome() {
  char buffer[4096];
  const ssize_t count = ::read(reports_, buffer, sizeof buffer);
  if (count > 0) read_.append(buffer, static_cast<std::size_t>(count));
  return count > 0;
}

void KilledWriter::ReadUntil(Clock::time_point end, std::size_t reports) {
  while (read_.size() < reports * sizeof(Report)) {
    const std::chrono::nanoseconds left = end - Clock::now();
    if (left.count() <= 0) return;
    const timespec time = {left.count() / 1000000000, left.count() % 1000000000};
    pollfd waiting = {reports_, POLLIN, 0};
    if (::ppoll(&waiting, 1, &time, nullptr) <= 0 || !ReadSome()) return;
  }
}

std::vector<Report> KilledWriter::KillAfter(int reports, std::chrono::microseconds more) {
  ReadUntil(Clock::now() + std::chrono::seconds(20), std::size_t(reports));
  EXPECT_GE(read_.size(), std::size_t(reports) * sizeof(Report)) << "it does not get on";
  ReadUntil(Clock::now() + more, std::numeric_limits<std::size_t>::max() / sizeof(Report));
  return Kill();
}

bool KilledWriter::WaitForStop() {
  int status = 0;
  if (::waitpid(process_, &status, 0) == process_ && WIFSTOPPED(status)) return true;
  process_ = 0;
  return false;
}

bool KilledWriter::Step() {
  if (process_ == 0) return false;
  if (!std::exchange(isWatched_, true) && !WaitForStop()) return false;
  return ::ptrace(PTRACE_SYSCALL, process_, nullptr, nullptr) == 0 && WaitForStop();
}

int KilledWriter::ReportsSoFar() {
  pollfd waiting = {reports_, POLLIN, 0};
  while (::poll(&waiting, 1, 0) > 0 && ReadSome()) {
  }
  return int(read_.size() / sizeof(Report));
}

std::vector<Report> KilledWriter::KillAfterSteps(int steps) {
  for (int i = 0; i < steps; ++i) EXPECT_TRUE(Step());
  return Kill();
}

std::vector<Report> KilledWriter::Kill() {
  EXPECT_TRUE(End()) << "it ended by itself";
  while (ReadSome()) {
  }
  std::vector<Report> reports;
  for (std::size_t at = 0; at + sizeof(Report) <= read_.size(); at += sizeof(Report)) {
    std::memcpy(&reports.emplace_back(), &read_[at], sizeof(Report));
  }
  return reports;
}

}  // namespace verlume::qt
