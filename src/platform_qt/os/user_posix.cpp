#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform_qt/os/user.h"

namespace verlume::qt {

bool OnlyUserMayWrite(const std::string& folder) {
  struct stat found;
  return ::stat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
         found.st_uid == ::geteuid() && (found.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool IsSameUser(std::intptr_t localSocket) {
  ucred peer;
  socklen_t size = sizeof peer;
  return ::getsockopt(static_cast<int>(localSocket), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
         peer.uid == ::geteuid();
}

void LetComeToFront(std::intptr_t) {}

std::string LocalConnectionName(const std::string& folder, const std::string& name) {
  return folder + '/' + name;
}

}  // namespace verlume::qt
