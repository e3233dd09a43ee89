#include "platform_qt/os/machine.h"

#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace verlume::qt {

char16_t PathSeparator() {
  return u'/';
}

std::optional<std::u16string> RegistryText(std::u16string_view, std::u16string_view) {
  return std::nullopt;
}

void GiveBackFreeMemory() {
#if defined(__GLIBC__)
  ::malloc_trim(0);
#endif
}

}  // namespace verlume::qt
