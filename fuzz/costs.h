// What an input may cost. The time is that of the processor: a busy machine changes it little.
#pragma once

#include <cstddef>

namespace verlume::fuzz {

// For each byte of the input. Every input may cost kTimeOfAny and `heapOfAny` besides. Under
// AddressSanitizer the limits are ten times as high.
struct CostLimits {
  double nanoseconds;
  double heapBytes;
  // A font that is used for the first time takes megabytes.
  double heapOfAny = 16 << 20;
};

class Costs {
 public:
  static constexpr double kTimeOfAny = 1e9;  // nanoseconds

  Costs(std::size_t bytes, CostLimits limits);
  // Fails the run when the input has taken too much time.
  ~Costs();
  Costs(const Costs&) = delete;
  Costs& operator=(const Costs&) = delete;

  // Fails the run when what was made of the input takes too much memory. To be called while it
  // exists. Inputs of less than a kilobyte are not looked at.
  void CheckHeap() const;

 private:
  double Limit(double perByte) const { return perByte * static_cast<double>(bytes_); }

  const std::size_t bytes_;
  const CostLimits limits_;
  double timeBefore_;
  double heapBefore_;
};

}  // namespace verlume::fuzz
