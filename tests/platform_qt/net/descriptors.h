// The open descriptors of this process.
#pragma once

#include <netinet/in.h>
#include <sys/socket.h>

#include <QDir>
#include <cstdint>

namespace verlume::qt {

inline QStringList Descriptors() {
  return QDir(QStringLiteral("/proc/self/fd"))
      .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
}

// Always includes the one that reads the folder.
inline qsizetype DescriptorsInUse() {
  return Descriptors().size();
}

// The socket that is connected to a port, -1 when there is none.
inline int DescriptorConnectedTo(std::int32_t port) {
  for (const QString& name : Descriptors()) {
    sockaddr_in6 peer = {};
    socklen_t size = sizeof peer;
    if (::getpeername(name.toInt(), reinterpret_cast<sockaddr*>(&peer), &size) != 0) continue;
    // An IPv4 address has its port at the same place.
    const bool isTcp = peer.sin6_family == AF_INET || peer.sin6_family == AF_INET6;
    if (isTcp && ntohs(peer.sin6_port) == port) return name.toInt();
  }
  return -1;
}

}  // namespace verlume::qt
