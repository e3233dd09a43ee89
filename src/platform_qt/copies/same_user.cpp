#include "platform_qt/copies/same_user.h"

#include <QLocalSocket>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace verlume::qt {

#ifdef Q_OS_UNIX
bool OnlyUserMayWrite(const QString& folder) {
  struct stat found;
  return ::stat(folder.toUtf8().constData(), &found) == 0 && S_ISDIR(found.st_mode) &&
         found.st_uid == ::geteuid() && (found.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}
#else
bool OnlyUserMayWrite(const QString&) {
  return true;  // a folder of the user's profile
}
#endif

#ifdef SO_PEERCRED
bool IsSameUser(const QLocalSocket& socket) {
  ucred peer;
  socklen_t size = sizeof peer;
  const int descriptor = static_cast<int>(socket.socketDescriptor());
  return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
         peer.uid == ::geteuid();
}
#else
bool IsSameUser(const QLocalSocket&) {
  return true;
}
#endif

}  // namespace verlume::qt
