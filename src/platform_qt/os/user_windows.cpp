#include "platform_qt/os/user.h"

namespace verlume::qt {

// Asked of folders in the user's profile only.
bool OnlyUserMayWrite(const std::string&) {
  return true;
}

// Pipes are made for the user alone.
bool IsSameUser(std::intptr_t) {
  return true;
}

// Pipes have no folder.
std::string LocalConnectionName(const std::string&, const std::string& name) {
  return name;
}

}  // namespace verlume::qt
