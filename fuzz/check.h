// How a fuzz target says that something is wrong: a promise that does not hold ends the run at
// once, as a crash would.
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
