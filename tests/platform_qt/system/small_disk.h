// A disk of a few pages, in memory, that only this process sees.
#pragma once

#include <string>

namespace verlume::qt {

// Mounts it on the folder: as the administrator in a name space of the process's own, else in one
// where it is its own administrator. False, with errno set, where the system allows neither.
bool MountSmallDisk(const std::string& folder);
void UnmountSmallDisk(const std::string& folder);

}  // namespace verlume::qt
