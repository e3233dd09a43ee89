#include "platform_qt/os/machine.h"

#include <cstdlib>
#include <ctime>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace verlume::qt {
namespace {

std::chrono::nanoseconds TimeOf(clockid_t clock) {
  timespec time{};
  ::clock_gettime(clock, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

}  // namespace

char16_t PathSeparator() {
  return u'/';
}

std::optional<std::u16string> RegistryText(std::u16string_view, std::u16string_view) {
  return std::nullopt;
}

std::optional<std::uint32_t> RegistryNumber(std::u16string_view, std::u16string_view) {
  return std::nullopt;
}

// The desktop's own style is as dark as the desktop.
bool NeedsDarkStyle() {
  return false;
}

// One clock goes on while the machine sleeps, the other does not.
std::chrono::nanoseconds TimeAsleep() {
  const auto awake = TimeOf(CLOCK_MONOTONIC);
  return TimeOf(CLOCK_BOOTTIME) - awake;
}

void GiveBackFreeMemory() {
#if defined(__GLIBC__)
  ::malloc_trim(0);
#endif
}

}  // namespace verlume::qt
