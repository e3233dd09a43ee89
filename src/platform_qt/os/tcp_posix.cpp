#include <fcntl.h>
#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

#include "platform_qt/os/tcp.h"

namespace verlume::qt {
namespace {

int DescriptorOf(SocketNumber socket) {
  return static_cast<int>(socket);
}

// Without effect on a system that does not know the option.
void SetTcpOption(SocketNumber socket, int option, std::int64_t number) {
  const int value = static_cast<int>(number);
  ::setsockopt(DescriptorOf(socket), IPPROTO_TCP, option, &value, sizeof value);
}

}  // namespace

// With a TCP_USER_TIMEOUT Linux does not count the probes; it applies that timeout instead.
void SetSilenceLimits(SocketNumber socket, const SilenceLimits& limits) {
  SetTcpOption(socket, TCP_KEEPIDLE, limits.idle.count());
  SetTcpOption(socket, TCP_KEEPINTVL, limits.interval.count());
  SetTcpOption(socket, TCP_KEEPCNT, limits.probes);
  SetTcpOption(socket, TCP_USER_TIMEOUT, limits.unacknowledged.count());
}

void AcknowledgeAtOnce(SocketNumber socket) {
  SetTcpOption(socket, TCP_QUICKACK, 1);
}

std::int64_t BytesUnacknowledged(SocketNumber socket) {
  int inSystem = 0;
  return ::ioctl(DescriptorOf(socket), SIOCOUTQ, &inSystem) == 0 ? inSystem : 1;
}

bool CanRead(SocketNumber socket) {
  char next = 0;
  return ::recv(DescriptorOf(socket), &next, 1, MSG_PEEK) >= 0 || errno != EAGAIN;
}

void EndSending(SocketNumber socket) {
  ::shutdown(DescriptorOf(socket), SHUT_WR);
}

SocketNumber DuplicateSocket(SocketNumber socket) {
  return ::fcntl(DescriptorOf(socket), F_DUPFD_CLOEXEC, 0);
}

void CloseSocket(SocketNumber socket) {
  ::close(DescriptorOf(socket));
}

}  // namespace verlume::qt
