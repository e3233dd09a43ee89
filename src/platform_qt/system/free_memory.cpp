#include "platform_qt/system/free_memory.h"

#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace verlume::qt {

void GiveBackFreeMemory() {
#if defined(__GLIBC__)
  ::malloc_trim(0);
#endif
}

}  // namespace verlume::qt
