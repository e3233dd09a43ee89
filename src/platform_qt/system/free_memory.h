// Gives memory back to the system.
#pragma once

namespace verlume::qt {

// What has been freed piece by piece stays with the process otherwise. Takes some milliseconds per
// hundred megabytes; does nothing where the system has no such function.
void GiveBackFreeMemory();

}  // namespace verlume::qt
