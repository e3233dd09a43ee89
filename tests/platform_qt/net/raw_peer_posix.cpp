#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>

#include "platform_qt/net/raw_peer.h"

namespace verlume::qt {
namespace {

int DescriptorOf(SocketNumber number) {
  return static_cast<int>(number);
}

}  // namespace

RawPeer::RawPeer(std::int32_t port, int sendBuffer)
    : number_(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0)) {
  if (sendBuffer > 0) {
    ::setsockopt(DescriptorOf(number_), SOL_SOCKET, SO_SNDBUF, &sendBuffer, sizeof sendBuffer);
  }
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  ::connect(DescriptorOf(number_), reinterpret_cast<const sockaddr*>(&address), sizeof address);
}

bool RawPeer::IsConnected() const {
  sockaddr_in address = {};
  socklen_t size = sizeof address;
  return ::getpeername(DescriptorOf(number_), reinterpret_cast<sockaddr*>(&address), &size) == 0;
}

std::int32_t RawPeer::OwnPort() const {
  sockaddr_in address = {};
  socklen_t size = sizeof address;
  ::getsockname(DescriptorOf(number_), reinterpret_cast<sockaddr*>(&address), &size);
  return ntohs(address.sin_port);
}

std::size_t RawPeer::Send(std::string_view bytes) {
  const ssize_t sent = ::send(DescriptorOf(number_), bytes.data(), bytes.size(), MSG_NOSIGNAL);
  return sent < 0 ? 0 : static_cast<std::size_t>(sent);
}

bool RawPeer::HasEnded() {
  char buffer[4096];
  for (;;) {
    const ssize_t size = ::recv(DescriptorOf(number_), buffer, sizeof buffer, 0);
    if (size == 0) return true;
    if (size < 0) return errno != EAGAIN && errno != ENOTCONN;
    received_.append(buffer, static_cast<std::size_t>(size));
  }
}

void RawPeer::Reset() {
  const linger none = {1, 0};
  ::setsockopt(DescriptorOf(number_), SOL_SOCKET, SO_LINGER, &none, sizeof none);
  Close();
}

}  // namespace verlume::qt
