#include "platform_qt/net/descriptors.h"

#include <netinet/in.h>
#include <sys/socket.h>

#include <QDir>

namespace verlume::qt {
namespace {

QStringList Descriptors() {
  return QDir(QStringLiteral("/proc/self/fd"))
      .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
}

}  // namespace

qsizetype DescriptorsInUse() {
  return Descriptors().size();
}

SocketNumber SocketConnectedTo(std::int32_t port) {
  for (const QString& name : Descriptors()) {
    sockaddr_in6 peer = {};
    socklen_t size = sizeof peer;
    if (::getpeername(name.toInt(), reinterpret_cast<sockaddr*>(&peer), &size) != 0) continue;
    // An IPv4 address has its port at the same place.
    const bool isTcp = peer.sin6_family == AF_INET || peer.sin6_family == AF_INET6;
    if (isTcp && ntohs(peer.sin6_port) == port) return name.toInt();
  }
  return kNoSocket;
}

}  // namespace verlume::qt
