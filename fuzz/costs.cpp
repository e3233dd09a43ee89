#include "fuzz/costs.h"

#include <malloc.h>

#include <cstdio>
#include <ctime>

#include "fuzz/check.h"

#if defined(__SANITIZE_ADDRESS__)
#define VERLUME_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VERLUME_ADDRESS_SANITIZER
#endif
#endif

#ifdef VERLUME_ADDRESS_SANITIZER
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // gcc brings no header for it
#endif

namespace verlume::fuzz {
namespace {

constexpr std::size_t kSmallest = 1024;

#ifdef VERLUME_ADDRESS_SANITIZER
constexpr double kFactor = 10;

double HeapBytes() {
  return static_cast<double>(__sanitizer_get_current_allocated_bytes());
}
#else
constexpr double kFactor = 1;

double HeapBytes() {
  const struct mallinfo2 heap = mallinfo2();
  return static_cast<double>(heap.uordblks + heap.hblkhd);
}
#endif

double ProcessorTime() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

}  // namespace

Costs::Costs(std::size_t bytes, CostLimits limits)
    : bytes_(bytes),
      limits_(limits),
      timeBefore_(ProcessorTime()),
      heapBefore_(bytes < kSmallest ? 0 : HeapBytes()) {}

Costs::~Costs() {
  const double limit = kFactor * (kTimeOfAny + Limit(limits_.nanoseconds));
  const double used = ProcessorTime() - timeBefore_;
  if (used > limit) std::fprintf(stderr, "%.0f ms, limit %.0f ms\n", used / 1e6, limit / 1e6);
  Check(used <= limit, "no input takes long");
}

void Costs::CheckHeap() const {
  if (bytes_ < kSmallest) return;
  const double limit = kFactor * (limits_.heapOfAny + Limit(limits_.heapBytes));
  const double used = HeapBytes() - heapBefore_;
  if (used > limit) std::fprintf(stderr, "%.0f bytes, limit %.0f bytes\n", used, limit);
  Check(used <= limit, "no input takes much memory");
}

}  // namespace verlume::fuzz
