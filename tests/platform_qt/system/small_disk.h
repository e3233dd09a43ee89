// A disk of a few pages, in memory, visible only to this process.
#pragma once

#include <string>

namespace verlume::qt {

// Mounts it on the folder: as administrator in a mount name space of the process, else in a user
// name space in which the process is administrator. False, with errno set, if the system allows
// neither.
bool MountSmallDisk(const std::string& folder);
void UnmountSmallDisk(const std::string& folder);

}  // namespace verlume::qt
