#include "measures.h"

#include <malloc.h>
#include <time.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <algorithm>

namespace verlume::soak {
namespace {

constexpr int kEvery = 10;  // ms

}  // namespace

std::int64_t ResidentBytes() {
  QFile file(QStringLiteral("/proc/self/statm"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  const QList<QByteArray> pages = file.readAll().split(' ');
  return pages.size() > 1 ? pages[1].toLongLong() * ::sysconf(_SC_PAGESIZE) : 0;
}

std::int64_t HeapBytes() {
  const struct mallinfo2 heap = ::mallinfo2();
  return static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
}

void ReturnReserve() {
  ::malloc_trim(0);
}

int Descriptors() {
  const QDir folder(QStringLiteral("/proc/self/fd"));
  // Without the descriptor that reads the folder.
  return static_cast<int>(
             folder.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size()) -
         1;
}

std::int64_t ProcessorMilliseconds() {
  timespec time = {};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return time.tv_sec * 1000 + time.tv_nsec / 1'000'000;
}

AnswerTimes::AnswerTimes() {
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.callOnTimeout([this] { Note(); });
  Restart();
  timer_.start(kEvery);
}

void AnswerTimes::Restart() {
  worst_ = 0;
  worstOwn_ = 0;
  sinceLast_.restart();
  processorAtLast_ = ProcessorMilliseconds();
}

void AnswerTimes::Note() {
  const int late = std::max(0, static_cast<int>(sinceLast_.restart()) - kEvery);
  const std::int64_t now = ProcessorMilliseconds();
  const int worked = static_cast<int>(now - processorAtLast_);
  processorAtLast_ = now;
  worst_ = std::max(worst_, late);
  worstOwn_ = std::max(worstOwn_, std::min(late, worked));
}

}  // namespace verlume::soak
