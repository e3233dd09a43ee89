// What guides the fuzzer.
#pragma once

#include <algorithm>

// The counters that the compiler adds to each branch; none in a build without libFuzzer.
extern "C" {
extern char __start___sancov_cntrs[] __attribute__((weak));
extern char __stop___sancov_cntrs[] __attribute__((weak));
}

namespace verlume::fuzz {

// What ran until now does not depend on the input, and does not count.
inline void ForgetCoverage() {
  if (__start___sancov_cntrs != nullptr) {
    std::fill(__start___sancov_cntrs, __stop___sancov_cntrs, '\0');
  }
}

}  // namespace verlume::fuzz
