// The check of a fuzz target: when a condition does not hold, the run ends at once like in a crash.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace verlume::fuzz {

inline void Check(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "Broken promise: %s\n", promise);
  std::abort();
}

}  // namespace verlume::fuzz
