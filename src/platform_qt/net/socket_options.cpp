#include "platform_qt/net/socket_options.h"

#include "platform_qt/os/tcp.h"

namespace verlume::qt {
namespace {

// An idle peer is probed often: on a link that loses many packets a few lost probes mean nothing.
constexpr SilenceLimits kSilenceLimits = {.idle = std::chrono::seconds(6),
                                          .interval = std::chrono::seconds(1),
                                          .probes = 10,
                                          .unacknowledged = std::chrono::seconds(17)};

}  // namespace

void SetConnectionOptions(QTcpSocket& socket) {
  socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
  socket.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
  SetSilenceLimits(socket.socketDescriptor(), kSilenceLimits);
  AcknowledgeAtOnce(socket);
}

void AcknowledgeAtOnce(QTcpSocket& socket) {
  AcknowledgeAtOnce(socket.socketDescriptor());
}

qint64 Unacknowledged(const QTcpSocket& socket) {
  return socket.bytesToWrite() + BytesUnacknowledged(socket.socketDescriptor());
}

}  // namespace verlume::qt
