// Windows shows the number by the window's icon; elsewhere docks hear of it by D-Bus alone.
#include "platform_qt/attention/launcher_entry.h"

namespace verlume::qt {

void ShowCountInLauncher(int) {}

}  // namespace verlume::qt
