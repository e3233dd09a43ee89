#include "platform_qt/net/socket_options.h"

#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <chrono>
#include <cstdint>

namespace verlume::qt {
namespace {

// An idle peer is probed often: on a link that loses many packets a few lost probes mean nothing.
// With a TCP_USER_TIMEOUT Linux does not count the probes; it applies that timeout instead.
constexpr std::chrono::seconds kIdleTime{6};
constexpr std::chrono::seconds kProbeInterval{1};
constexpr int kProbes = 10;
constexpr std::chrono::milliseconds kUserTimeout = std::chrono::seconds(17);

int DescriptorOf(const QTcpSocket& socket) {
  return static_cast<int>(socket.socketDescriptor());
}

// Without effect on a system that does not know the option.
void SetTcpOption(QTcpSocket& socket, int option, std::int64_t number) {
  const int value = static_cast<int>(number);
  ::setsockopt(DescriptorOf(socket), IPPROTO_TCP, option, &value, sizeof value);
}

}  // namespace

void SetConnectionOptions(QTcpSocket& socket) {
  socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
  socket.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
  SetTcpOption(socket, TCP_KEEPIDLE, kIdleTime.count());
  SetTcpOption(socket, TCP_KEEPINTVL, kProbeInterval.count());
  SetTcpOption(socket, TCP_KEEPCNT, kProbes);
  SetTcpOption(socket, TCP_USER_TIMEOUT, kUserTimeout.count());
  AcknowledgeAtOnce(socket);
}

void AcknowledgeAtOnce(QTcpSocket& socket) {
  SetTcpOption(socket, TCP_QUICKACK, 1);
}

qint64 Unacknowledged(const QTcpSocket& socket) {
  int inSystem = 0;
  if (::ioctl(DescriptorOf(socket), SIOCOUTQ, &inSystem) != 0) return 1;
  return socket.bytesToWrite() + inSystem;
}

}  // namespace verlume::qt
