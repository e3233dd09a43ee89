#include "platform_qt/net/descriptors.h"

#include <winsock2.h>
#include <ws2tcpip.h>

namespace verlume::qt {

qsizetype DescriptorsInUse() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  return count;
}

// Windows does not tell which handles are open: each that may be is asked whether it is a socket.
SocketNumber SocketConnectedTo(std::int32_t port) {
  constexpr SOCKET kGreatest = 16'384;
  constexpr SOCKET kStep = 4;
  for (SOCKET handle = kStep; handle < kGreatest; handle += kStep) {
    sockaddr_in6 peer = {};
    int size = sizeof peer;
    if (::getpeername(handle, reinterpret_cast<sockaddr*>(&peer), &size) != 0) continue;
    // An IPv4 address has its port at the same place.
    if (ntohs(peer.sin6_port) == port) return static_cast<SocketNumber>(handle);
  }
  return kNoSocket;
}

}  // namespace verlume::qt
